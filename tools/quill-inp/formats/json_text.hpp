#ifndef KELP_INPUT_QUILL_TOOL_FORMATS_JSON_TEXT_HPP
#define KELP_INPUT_QUILL_TOOL_FORMATS_JSON_TEXT_HPP

// Strings and numbers that JSON cannot hold directly.
//
// A string that is not UTF-8 is written as the object {"bytes": "6869ff"}, its bytes in
// hexadecimal. Numbers that are not finite are the strings "inf", "-inf", "nan" and "-nan". Finite
// numbers are read back as the same double, even a negative zero, whether it is written -0.0 or -0.

#include <optional>
#include <string>
#include <string_view>

namespace kelp::input::quill::tool {

/// The only member of the object for a string that is not UTF-8.
inline constexpr std::string_view bytes_member = "bytes";

/// Returns the bytes that a text of hexadecimal digits in lower case stands for, or nothing for any
/// other text.
std::optional<std::string> bytes_from_hexadecimal(std::string_view digits);

/// Returns the name of a number that is not finite.
std::string_view special_name(double number);

/// Returns the number with this name, or nothing for any other text.
std::optional<double> find_special_number(std::string_view name);

}  // namespace kelp::input::quill::tool

#endif  // KELP_INPUT_QUILL_TOOL_FORMATS_JSON_TEXT_HPP
