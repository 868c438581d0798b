#ifndef KELP_CORE_TEXT_FIXED_POINT_HPP
#define KELP_CORE_TEXT_FIXED_POINT_HPP

#include <array>
#include <cfloat>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

#include "digits.hpp"
#include "eight_bytes.hpp"

namespace kelp::core::text {
namespace {
constexpr bool arithmetic_rounds_once = FLT_EVAL_METHOD == 0 || FLT_EVAL_METHOD == 1;
constexpr std::array<std::int64_t, 17> powers_of_ten = {
    1, 10, 100, 1000, 10000, 100000, 1000000, 10000000, 100000000, 1000000000,10000000000,100000000000,1000000000000,10000000000000,100000000000000,1000000000000000, 10000000000000000};

inline std::optional<double> parse_short_fixed_point(std::string_view text) {
  if (!arithmetic_rounds_once || text.size() < word_bytes || text.size() > 2 * word_bytes) {
    return std::nullopt;
  }
  const char* const first = text.data();
  const std::uint64_t head = digit_values(load_word(first));
  const std::uint64_t tail = digit_values(load_word(first + text.size() - word_bytes));
  const std::uint64_t points = zero_flags(digit_values(head) ^ in_every_byte('.'));
  if (points == 0) return std::nullopt;
  const std::size_t whole_digits = first_flagged_byte(points);
  const std::size_t fraction_digits = text.size() - whole_digits - 1;
  if (fraction_digits == 0) return std::nullopt;
  // Leading zeros take the place of the point and of what stands on its other side.
  const std::uint64_t whole = (head << 8) << (8 * (word_bytes - 1 - whole_digits));
  const bool is_long = fraction_digits > 8;
  const std::size_t rest = is_long ? fraction_digits - 8 : fraction_digits;
  const std::uint64_t low = tail & (~std::uint64_t{0} << (8 * (word_bytes - rest)));
  if (!are_digit_values(whole) || !are_digit_values(low)) return std::nullopt;
  std::int64_t v = number_of(whole);
  if (is_long) {
    const std::uint64_t high = digit_values(load_word(first + whole_digits + 1));
    if (!are_digit_values(high)) return std::nullopt;
    v = v * 100000000 + number_of(high);
  }
  v = v * powers_of_ten[rest] + number_of(low);
  return static_cast<double>(v) /
         static_cast<double>(powers_of_ten[fraction_digits]);
}

}}  // namespace kelp::core::text

#endif  // KELP_CORE_TEXT_FIXED_POINT_HPP
