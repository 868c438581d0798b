#ifndef KELP_CORE_TEXT_FLOATING_POINT_HPP
#define KELP_CORE_TEXT_FLOATING_POINT_HPP

#include <cmath>
#include <optional>
#include <string_view>
#include <system_error>

// The build defines it if the standard library cannot read doubles; the two functions do the same.
#ifdef KELP_CORE_TEXT_READS_BY_FAST_FLOAT
#include <fast_float/fast_float.h>
#else
#include <charconv>
#endif

#include "ascii.hpp"

namespace kelp::core::text {

/// The double nearest to a text in the notation of C, without a sign: digits, a point among them,
/// an exponent. Nothing for any other text, and nothing for a number that is too large for a finite
/// double. For one that is too small for a double other than zero, either zero or nothing.
inline std::optional<double> parse_floating_point(std::string_view text) {
#ifdef KELP_CORE_TEXT_READS_BY_FAST_FLOAT
  using fast_float::from_chars;
#else
  using std::from_chars;
#endif
  // from_chars would also read a sign here, "inf" and "nan", and the characters that may follow
  // "nan".
  if (text.empty() || (!is_digit(text.front()) && text.front() != '.')) return std::nullopt;
  const char* const last = text.data() + text.size();
  double value = 0.0;
  const auto [end, error] = from_chars(text.data(), last, value);
  // Out of range is an error, or an infinity.
  if (error != std::errc() || end != last || !std::isfinite(value)) return std::nullopt;
  return value;
}

}  // namespace kelp::core::text

#endif  // KELP_CORE_TEXT_FLOATING_POINT_HPP
