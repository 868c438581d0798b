#include "decimal.hpp"

#include <cstddef>

#include "ascii.hpp"
#include "digits.hpp"
#include "eight_bytes.hpp"

namespace kelp::core::text {

namespace {

bool take(std::string_view& text, char c) {
  if (text.empty() || text.front() != c) return false;
  text.remove_prefix(1);
  return true;
}

/// Takes the digits at the front of `text` and appends them to `number`.
std::string_view take_digits(std::string_view& text, std::uint64_t& number) {
  std::size_t count = 0;
  for (; text.size() - count >= word_bytes; count += word_bytes) {
    const std::uint64_t values = digit_values(load_word(text.data() + count));
    if (!are_digit_values(values)) break;
    number = number * 100000000 + static_cast<std::uint64_t>(number_of(values));
  }
  for (; count < text.size() && is_digit(text[count]); ++count) {
    number = number * 10 + static_cast<std::uint64_t>(text[count] - '0');
  }
  const std::string_view digits = text.substr(0, count);
  text.remove_prefix(count);
  return digits;
}

// exponent = ( "e" / "E" / "d" / "D" ) [ "+" / "-" ] 1*digit
std::optional<std::int64_t> scan_exponent(std::string_view text) {
  // No text in memory has so many digits that they make up for a power of ten like this.
  constexpr std::int64_t limit = 1'000'000'000'000'000'000 / 10;
  const char letter = to_lower(text.front());
  if (letter != 'e' && letter != 'd') return std::nullopt;
  text.remove_prefix(1);
  const bool negative = take(text, '-');
  if (!negative) take(text, '+');
  if (text.empty()) return std::nullopt;
  std::int64_t exponent = 0;
  for (const char c : text) {
    if (!is_digit(c)) return std::nullopt;
    if (exponent < limit) exponent = exponent * 10 + (c - '0');
  }
  return negative ? -exponent : exponent;
}

}  // namespace

// decimal = ( 1*digit [ "." *digit ] / "." 1*digit ) [ exponent ]
std::optional<Decimal> scan_decimal(std::string_view text) {
  Decimal decimal;
  decimal.whole = take_digits(text, decimal.digits);
  if (take(text, '.')) decimal.fraction = take_digits(text, decimal.digits);
  if (decimal.whole.empty() && decimal.fraction.empty()) return std::nullopt;
  if (text.empty()) return decimal;
  const std::optional<std::int64_t> exponent = scan_exponent(text);
  if (!exponent) return std::nullopt;
  decimal.exponent = *exponent;
  return decimal;
}

}  // namespace kelp::core::text
