#ifndef KELP_INPUT_QUILL_WRITER_NUMBER_TEXT_HPP
#define KELP_INPUT_QUILL_WRITER_NUMBER_TEXT_HPP

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "writer/floating_point_text.hpp"

// The three spellings of numbers in a QUILL input. The locale has no influence on them.

namespace kelp::input::quill {

/// The width of a coordinate's field. Longer numbers are not cut.
inline constexpr std::size_t coordinate_width = 14;

inline constexpr int scan_value_digits = 6;

/// The most characters that write_integer() and write_scan_value() write.
inline constexpr std::size_t longest_integer = std::string_view("-2147483648").size();
inline constexpr std::size_t longest_scan_value = longest_general(scan_value_digits);

/// Writes plain decimal digits at `field`, after a "-" for negative numbers, and returns the end of
/// the text.
char* write_integer(char* field, std::int32_t number);

/// Appends what printf("%14.6f") prints.
void append_coordinate(std::string& out, double coordinate);

/// Writes what printf("%14.6f") prints into the 14 characters at `field` and returns true, for
/// numbers that can be converted in integers: nearly all below a million. For all others, writes
/// nothing and returns false.
bool write_coordinate(char* field, double coordinate);

/// Writes what printf("%g") prints at `field` and returns the end of the text.
char* write_scan_value(char* field, double value);

}  // namespace kelp::input::quill

#endif  // KELP_INPUT_QUILL_WRITER_NUMBER_TEXT_HPP
