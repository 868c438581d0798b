#ifndef KELP_INPUT_QUILL_TOOL_FORMATS_JSON_TEXT_HPP
#define KELP_INPUT_QUILL_TOOL_FORMATS_JSON_TEXT_HPP

// Strings and numbers that JSON has no form for, and the layout of JSON texts.
//
// A string of bytes that is not UTF-8 is the object {"bytes": "6869ff"}, its bytes in hexadecimal.
// Numbers that are not finite are the strings "inf", "-inf", "nan" and "-nan". Finite numbers come
// back as the same double, a negative zero included, be it written -0.0 or -0.

#include <string>
#include <string_view>

#include <nlohmann/json_fwd.hpp>

namespace kelp::input::quill::tool {

/// What is written keeps its members in the order in which they were added.
using OrderedJson = nlohmann::ordered_json;

/// What is read looks its members up fast, however many a hostile text has.
using Json = nlohmann::json;

OrderedJson string_to_json(std::string_view text);
OrderedJson number_to_json(double number);

/// Return the string or number that `value`, which was read by parse_json(), stands for. Throw
/// Trouble, beginning with `where`, for any other value.
std::string string_from_json(const Json& value, const std::string& where);
double number_from_json(const Json& value, const std::string& where);

/// Returns the value on one line, with a blank after each colon and comma.
std::string to_one_line(const OrderedJson& value);

/// Returns the value on several lines: the members of the outermost objects and the entries of
/// their lists each begin one. A line end follows.
std::string to_lines(const OrderedJson& value);

/// Reads a JSON text. Throws Trouble, with the line, for a text that is not JSON, and for an object
/// with two members of the same name, of which one would be lost.
Json parse_json(std::string_view text);

}  // namespace kelp::input::quill::tool

#endif  // KELP_INPUT_QUILL_TOOL_FORMATS_JSON_TEXT_HPP
