#ifndef KELP_CORE_TEXT_DECIMAL_HPP
#define KELP_CORE_TEXT_DECIMAL_HPP

#include <cfloat>
#include <cstdint>
#include <optional>
#include <string_view>

namespace kelp::core::text {

/// A number without a sign, taken apart: the digits before and behind the point, and the power of
/// ten that multiplies them.
struct Decimal {
  std::string_view whole;
  std::string_view fraction;
  /// Beyond anything the digits could make up for, an exponent may be cut to another such one.
  std::int64_t exponent = 0;
  /// All digits as one integer, modulo 2^64.
  std::uint64_t digits = 0;
};

/// Takes `text` apart, or returns nothing when it is no number as a whole.
std::optional<Decimal> scan_decimal(std::string_view text);

/// The double nearest to the number, or nothing when the number is too large for one.
std::optional<double> nearest_double(const Decimal& decimal);

/// Whether an operation on doubles rounds to a double. On processors that compute with more digits,
/// a result is rounded twice, and not always to the nearest double.
inline constexpr bool arithmetic_rounds_once = FLT_EVAL_METHOD == 0 || FLT_EVAL_METHOD == 1;

}  // namespace kelp::core::text

#endif  // KELP_CORE_TEXT_DECIMAL_HPP
