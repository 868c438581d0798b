#ifndef KELP_INPUT_QUILL_WRITER_FLOATING_POINT_TEXT_HPP
#define KELP_INPUT_QUILL_WRITER_FLOATING_POINT_TEXT_HPP

#include <cstddef>
#include <limits>
#include <string_view>

// Texts of floating-point numbers, which are the same with every standard library and in every
// locale. Each function writes at `out`, where there must be room for the longest text, and returns
// the end of what it wrote. Infinities and NaNs are "inf" and "nan", after a "-" if their sign is
// negative.

namespace kelp::input::quill {

/// The largest double has a digit and max_exponent10 more before the point.
constexpr std::size_t longest_fixed(int decimals) {
  return std::numeric_limits<double>::max_exponent10 + std::string_view("-1.").size() +
         static_cast<std::size_t>(decimals);
}

constexpr std::size_t longest_general(int digits) {
  return std::string_view("-.e-308").size() + static_cast<std::size_t>(digits);
}

inline constexpr std::size_t longest_shortest = std::string_view("-2.2250738585072014e-308").size();

/// The smallest doubles have 323 zeros before their first digit.
inline constexpr std::size_t longest_shortest_fixed =
    std::string_view("-0.").size() + 323 + std::numeric_limits<double>::max_digits10;

/// Writes what printf("%.*f") prints.
char* write_fixed(char* out, double value, int decimals);

/// Writes what printf("%.*g") prints.
char* write_general(char* out, double value, int digits);

/// Writes the shortest text that reads back as the same number. Of two that are equally long, this
/// is the one without an exponent.
char* write_shortest(char* out, double value);

/// Write the shortest text that reads back as the same number and has no exponent, or has one.
char* write_shortest_fixed(char* out, double value);
char* write_shortest_scientific(char* out, double value);

}  // namespace kelp::input::quill

#endif  // KELP_INPUT_QUILL_WRITER_FLOATING_POINT_TEXT_HPP
