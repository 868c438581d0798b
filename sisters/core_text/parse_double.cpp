#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <limits>
#include <optional>

#include "ascii.hpp"
#include "decimal.hpp"
#include "fixed_point.hpp"
#include "floating_point.hpp"
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

/// The value of any number without a sign.
std::optional<double> parse_magnitude(std::string_view text) {
  if (const auto value = parse_floating_point(text)) return value;
  if (const auto decimal = scan_decimal(text)) return nearest_double(*decimal);
  return parse_name(text);
}

}  // namespace

// number = [ "+" / "-" ] ( decimal / "inf" / "infinity" / "nan" )
bool try_parse_double(std::string_view token, double& value) {
  // The signs of coordinates follow no pattern, so a processor would predict a branch that depends
  // on them wrongly half of the time. The sign is an index instead.
  static constexpr std::array<double, 2> signs = {1.0, -1.0};
  const char first = token.empty() ? '\0' : token.front();
  const bool is_negative = first == '-';
  const bool is_positive = first == '+';
  token.remove_prefix(std::size_t{is_negative} + std::size_t{is_positive});
  std::optional<double> magnitude = parse_fixed_point(token);
  if (!magnitude) magnitude = parse_magnitude(token);
  if (!magnitude) return false;
  value = std::copysign(*magnitude, signs[std::size_t{is_negative}]);
  return true;
}

}  // namespace kelp::core::text
