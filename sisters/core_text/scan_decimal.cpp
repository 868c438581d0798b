#include <algorithm>
#include <cstddef>

#include "ascii.hpp"
#include "decimal.hpp"

namespace kelp::core::text {

namespace {

bool take(std::string_view& text, char c) {
  if (text.empty() || text.front() != c) return false;
  text.remove_prefix(1);
  return true;
}

std::string_view take_digits(std::string_view& text) {
  const auto* const end = std::find_if_not(text.begin(), text.end(), is_digit);
  const std::string_view digits = text.substr(0, static_cast<std::size_t>(end - text.begin()));
  text.remove_prefix(digits.size());
  return digits;
}

bool take_exponent_letter(std::string_view& text) {
  return take(text, 'e') || take(text, 'E') || take(text, 'd') || take(text, 'D');
}

std::int64_t limited_value(std::string_view digits) {
  constexpr std::int64_t limit = 100'000'000'000'000'000;
  std::int64_t value = 0;
  for (const char digit : digits) {
    if (value < limit) value = value * 10 + (digit - '0');
  }
  return value;
}

}  // namespace

// decimal = ( 1*digit [ "." *digit ] / "." 1*digit ) [ exponent ]
// exponent = ( "e" / "E" / "d" / "D" ) [ "+" / "-" ] 1*digit
std::optional<Decimal> scan_decimal(std::string_view text) {
  Decimal decimal;
  decimal.whole = take_digits(text);
  if (take(text, '.')) decimal.fraction = take_digits(text);
  if (decimal.whole.empty() && decimal.fraction.empty()) return std::nullopt;
  if (text.empty()) return decimal;
  if (!take_exponent_letter(text)) return std::nullopt;
  const bool negative = take(text, '-');
  if (!negative) take(text, '+');
  const std::string_view exponent = take_digits(text);
  if (exponent.empty() || !text.empty()) return std::nullopt;
  decimal.exponent = negative ? -limited_value(exponent) : limited_value(exponent);
  return decimal;
}

}  // namespace kelp::core::text
