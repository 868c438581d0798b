#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <limits>
#include <optional>
#include <string_view>

#include "ascii.hpp"
#include "decimal.hpp"
#include "fixed_point.hpp"
#include "kelp/core/text.hpp"

namespace kelp::core::text {

namespace {

bool equals_ignoring_case(std::string_view text, std::string_view lower) {
  return std::equal(text.begin(), text.end(), lower.begin(), lower.end(),
                    [](char a, char b) { return to_lower(a) == b; });
}

std::optional<double> parse_name(std::string_view text) {
  using Limits = std::numeric_limits<double>;
  if (equals_ignoring_case(text, "nan")) return Limits::quiet_NaN();
  if (equals_ignoring_case(text, "inf")) return Limits::infinity();
  if (equals_ignoring_case(text, "infinity")) return Limits::infinity();
  return std::nullopt;
}

std::optional<double> parse_any(std::string_view text) {
  if (!text.empty() && (is_digit(text.front()) || text.front() == '.')) {
    double value;
    auto r = std::from_chars(text.data(), text.data() + text.size(), value);
    if (r.ec == std::errc() && r.ptr == text.data() + text.size()) return value;
  }
  const std::optional<Decimal> decimal = scan_decimal(text);
  return decimal ? nearest_double(*decimal) : parse_name(text);
}

}  // namespace

// number = [ "+" / "-" ] ( decimal / "inf" / "infinity" / "nan" )
bool try_parse_double(std::string_view token, double& value) {
  // Half of all coordinates are negative, in no order that a processor could foresee: the sign must
  // not decide on a jump.
  constexpr std::array<double, 2> signs = {1.0, -1.0};
  const char first = token.empty() ? '\0' : token.front();
  const bool negative = first == '-';
  token.remove_prefix(std::size_t{negative} + std::size_t{first == '+'});
  std::optional<double> magnitude = parse_short_fixed_point(token);
  if (!magnitude) magnitude = parse_any(token);
  if (!magnitude) return false;
  value = std::copysign(*magnitude, signs[std::size_t{negative}]);
  return true;
}

}  // namespace kelp::core::text
