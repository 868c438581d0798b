#ifndef KELP_CORE_TEXT_FIXED_POINT_HPP
#define KELP_CORE_TEXT_FIXED_POINT_HPP

#include <array>
#include <cfloat>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

#include "eight_bytes.hpp"
#include "eight_digits.hpp"

namespace kelp::core::text {

/// Whether an operation on doubles rounds to a double. A processor that computes with more digits
/// rounds its results twice, and not always to the nearest double.
inline constexpr bool arithmetic_rounds_once = FLT_EVAL_METHOD == 0 || FLT_EVAL_METHOD == 1;

constexpr auto make_powers_of_ten() {
  std::array<std::int64_t, 16> powers{1};
  for (std::size_t i = 1; i < powers.size(); ++i) powers[i] = powers[i - 1] * 10;
  return powers;
}

inline constexpr auto powers_of_ten = make_powers_of_ten();

/// The number spelled by the last `count` bytes, 1 to 15, of a text of at least eight bytes.
/// Nothing if one of them is not a digit.
inline std::optional<std::int64_t> last_digits(std::string_view text, std::size_t count) {
  const char* const end = text.data() + text.size();
  const std::size_t low_count = count > word_bytes ? count - word_bytes : count;
  const std::uint64_t low = last_digit_values(load_word(end - word_bytes), low_count);
  if (!are_digits(low)) return std::nullopt;
  if (low_count == count) return number_of(low);
  const std::uint64_t high = digit_values(load_word(end - count));
  if (!are_digits(high)) return std::nullopt;
  return number_of(high) * powers_of_ten[low_count] + number_of(low);
}

// fixed-point = *digit "." 1*digit

/// The value of a fixed-point text of 8 to 16 bytes with the point among the first eight, which
/// nearly every coordinate is. Nothing for any other text.
inline std::optional<double> parse_fixed_point(std::string_view text) {
  // All digits together are an integer below 10^15, and the point divides it by a power of ten of
  // at most 10^15. Integers up to 2^53 are doubles, and dividing two doubles gives the double
  // nearest to the exact quotient.
  if (!arithmetic_rounds_once || text.size() < word_bytes || text.size() > 2 * word_bytes) {
    return std::nullopt;
  }
  const std::uint64_t front = load_word(text.data());
  const std::uint64_t points = zero_flags(front ^ in_every_byte('.'));
  if (points == 0) return std::nullopt;
  const std::size_t whole_count = first_flagged_byte(points);
  const std::size_t fraction_count = text.size() - whole_count - 1;
  const std::uint64_t whole = first_digit_values(front, whole_count);
  if (fraction_count == 0 || !are_digits(whole)) return std::nullopt;
  const std::optional<std::int64_t> fraction = last_digits(text, fraction_count);
  if (!fraction) return std::nullopt;
  const std::int64_t scale = powers_of_ten[fraction_count];
  return static_cast<double>(number_of(whole) * scale + *fraction) / static_cast<double>(scale);
}

}  // namespace kelp::core::text

#endif  // KELP_CORE_TEXT_FIXED_POINT_HPP
