#include "language_server/protocol/json.hpp"

#include <limits>

#include "language_server/protocol/response_error.hpp"

namespace kelp::input::quill::language_server {

namespace {

// A value of the JSON library takes many times the bytes of its text. These bounds let any message
// of the protocol pass, and keep the memory for a message near its length.
constexpr int deepest = 64;
constexpr std::size_t most_values = 1'000'000;

const Json no_value;

[[noreturn]] void refuse(const char* name, const char* type) {
  throw ResponseError(ErrorCode::InvalidParams,
                      std::string("'") + name + "' is missing or is not " + type);
}

}  // namespace

Json parse_json(std::string_view text) {
  std::size_t values = 0;
  const auto count = [&](int depth, Json::parse_event_t event, Json&) {
    values += event == Json::parse_event_t::value ? 1U : 0U;
    values += depth >= 0 && event == Json::parse_event_t::key ? 1U : 0U;
    values += event == Json::parse_event_t::array_start ? 1U : 0U;
    values += event == Json::parse_event_t::object_start ? 1U : 0U;
    if (depth > deepest || values > most_values)
      throw ResponseError(ErrorCode::InvalidRequest, "the message has too many values");
    return true;
  };
  try {
    return Json::parse(text, count);
  } catch (const Json::exception&) {
    throw ResponseError(ErrorCode::ParseError, "the message is not JSON");
  }
}

std::string json_text(const Json& value) {
  return value.dump(-1, ' ', false, Json::error_handler_t::replace);
}

const Json& find_member(const Json& object, const char* name) {
  if (!object.is_object()) return no_value;
  const auto member = object.find(name);
  return member == object.end() ? no_value : *member;
}

const Json& object_member(const Json& object, const char* name) {
  const Json& member = find_member(object, name);
  if (!member.is_object()) refuse(name, "an object");
  return member;
}

const Json& list_member(const Json& object, const char* name) {
  const Json& member = find_member(object, name);
  if (!member.is_array()) refuse(name, "a list");
  return member;
}

const std::string& text_member(const Json& object, const char* name) {
  const Json& member = find_member(object, name);
  if (!member.is_string()) refuse(name, "a string");
  return member.get_ref<const std::string&>();
}

std::size_t integer_member(const Json& object, const char* name) {
  const Json& member = find_member(object, name);
  constexpr std::uint64_t largest = std::numeric_limits<std::int32_t>::max();
  // What is read from a text and has no sign is unsigned; what a program made may be signed.
  if (!member.is_number_integer() ||
      (!member.is_number_unsigned() && member.get<std::int64_t>() < 0) ||
      member.get<std::uint64_t>() > largest)
    refuse(name, "an integer from 0 to 2147483647");
  return member.get<std::size_t>();
}

bool is_true(const Json& object, const char* name) {
  const Json& member = find_member(object, name);
  return member.is_boolean() && member.get<bool>();
}

}  // namespace kelp::input::quill::language_server
