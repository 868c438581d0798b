#ifndef KELP_INPUT_QUILL_TOOL_FORMATS_JSON_TEXT_HPP
#define KELP_INPUT_QUILL_TOOL_FORMATS_JSON_TEXT_HPP

// Strings and numbers that JSON cannot hold directly, and the layout of JSON texts.
//
// A string that is not UTF-8 is written as the object {"bytes": "6869ff"}, its bytes in
// hexadecimal. Numbers that are not finite are the strings "inf", "-inf", "nan" and "-nan". Finite
// numbers are read back as the same double, even a negative zero, whether it is written -0.0 or -0.

#include <string>
#include <string_view>

#include <nlohmann/json_fwd.hpp>

namespace kelp::input::quill::tool {

/// For writing: members keep the order in which they were added.
using OrderedJson = nlohmann::ordered_json;

/// For reading: members are found fast, even if a hostile text has very many of them.
using Json = nlohmann::json;

OrderedJson string_to_json(std::string_view text);
OrderedJson number_to_json(double number);

/// Return the string or number that a value from parse_json() represents. For any other value,
/// throw Trouble with a message that begins with `where`.
std::string string_from_json(const Json& value, const std::string& where);
double number_from_json(const Json& value, const std::string& where);

/// Returns the value on one line, with a blank after each colon and comma.
std::string to_one_line(const OrderedJson& value);

/// Returns the value on several lines: the members of the outermost objects and the entries of
/// their lists each begin a new line. The last line has a line end.
std::string to_lines(const OrderedJson& value);

/// Reads a JSON text. Throws Trouble, with the line, for a text that is not JSON, and for an object
/// with two members with the same name, since one of them would be lost.
Json parse_json(std::string_view text);

}  // namespace kelp::input::quill::tool

#endif  // KELP_INPUT_QUILL_TOOL_FORMATS_JSON_TEXT_HPP
