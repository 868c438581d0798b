#ifndef KELP_INPUT_QUILL_LANGUAGE_SERVER_PROTOCOL_JSON_HPP
#define KELP_INPUT_QUILL_LANGUAGE_SERVER_PROTOCOL_JSON_HPP

#include <string>
#include <string_view>

#include <nlohmann/json.hpp>

namespace kelp::input::quill::language_server {

using Json = nlohmann::json;

/// Reads a JSON text. Throws ResponseError: ParseError for a text that is not JSON, InvalidRequest
/// for one that is nested deeper, or has more values, than any message of the protocol.
Json parse_json(std::string_view text);

/// Returns the JSON text of a value. Bytes that are not UTF-8 become U+FFFD.
std::string json_text(const Json& value);

/// Returns a member of an object, or a null value if there is none or `object` is none.
const Json& find_member(const Json& object, const char* name);

/// Return a member of an object. Throw ResponseError, InvalidParams, which names the member, if
/// there is none or it has another type. An integer is not negative and at most 2^31 - 1.
const Json& object_member(const Json& object, const char* name);
const Json& list_member(const Json& object, const char* name);
const std::string& text_member(const Json& object, const char* name);
std::size_t integer_member(const Json& object, const char* name);

/// Returns a member that is true, and false for everything else.
bool is_true(const Json& object, const char* name);

}  // namespace kelp::input::quill::language_server

#endif  // KELP_INPUT_QUILL_LANGUAGE_SERVER_PROTOCOL_JSON_HPP
