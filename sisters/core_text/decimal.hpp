#ifndef KELP_CORE_TEXT_DECIMAL_HPP
#define KELP_CORE_TEXT_DECIMAL_HPP

#include <cstdint>
#include <optional>
#include <string_view>

namespace kelp::core::text {

/// A number without a sign, taken apart: the digits before and behind the point, and the power of
/// ten that multiplies them. At least one of the two has a digit.
struct Decimal {
  std::string_view whole;
  std::string_view fraction;
  /// Limited to a magnitude that no number of digits in memory can make up for.
  std::int64_t exponent = 0;
};

/// Takes a text apart that is a number from end to end, and returns nothing for any other. Every
/// letter that may begin an exponent is understood, those of Fortran included.
std::optional<Decimal> scan_decimal(std::string_view text);

/// The double nearest to the number; nothing when the number is too large for one.
std::optional<double> nearest_double(const Decimal& decimal);

}  // namespace kelp::core::text

#endif  // KELP_CORE_TEXT_DECIMAL_HPP
