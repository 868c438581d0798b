#ifndef KELP_CORE_TEXT_DECIMAL_HPP
#define KELP_CORE_TEXT_DECIMAL_HPP

#include <cstdint>
#include <optional>
#include <string_view>

namespace kelp::core::text {

/// The parts of a number without a sign: the digits before and after the point, and the power of
/// ten that multiplies them. At least one of `whole` and `fraction` has a digit.
struct Decimal {
  std::string_view whole;
  std::string_view fraction;
  /// Limited to a magnitude that is larger than any count of digits that fits in memory.
  std::int64_t exponent = 0;
};

/// Splits a text that is a number as a whole into its parts, and returns nothing for any other
/// text. Every letter that may begin an exponent is understood, those of Fortran included.
std::optional<Decimal> scan_decimal(std::string_view text);

/// The double nearest to the number; nothing when the number is too large for one.
std::optional<double> nearest_double(const Decimal& decimal);

}  // namespace kelp::core::text

#endif  // KELP_CORE_TEXT_DECIMAL_HPP
