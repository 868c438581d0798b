#include "language_server/protocol/message.hpp"

#include <utility>

namespace kelp::input::quill::language_server {

namespace {

[[noreturn]] void refuse(const char* reason) {
  throw ResponseError(ErrorCode::InvalidRequest, reason);
}

/// Takes a member out of an object; null if there is none.
Json take(Json& object, const char* name) {
  const auto member = object.find(name);
  return member == object.end() ? Json() : std::move(*member);
}

bool is_identity(const Json& id) { return id.is_number_integer() || id.is_string(); }

Json empty_message() { return {{"jsonrpc", "2.0"}}; }

}  // namespace

Message parse_message(std::string_view text) {
  Json json = parse_json(text);
  if (!json.is_object()) refuse("the message is not an object");
  if (find_member(json, "jsonrpc") != "2.0") refuse("'jsonrpc' is not \"2.0\"");
  Message message;
  message.id = take(json, "id");
  if (json.contains("id") && !message.id.is_null() && !is_identity(message.id))
    refuse("'id' is neither an integer nor a string");
  if (!json.contains("method")) {
    // Some clients leave out a result that is null.
    if (message.id.is_null() && !json.contains("error")) refuse("'method' is missing");
    message.kind = Message::Kind::Response;
    message.is_error = json.contains("error");
    message.result = take(json, "result");
    return message;
  }
  if (!json["method"].is_string()) refuse("'method' is not a string");
  if (json.contains("id") && message.id.is_null()) refuse("'id' is null");
  message.kind = json.contains("id") ? Message::Kind::Request : Message::Kind::Notification;
  message.method = json["method"].get<std::string>();
  message.params = take(json, "params");
  return message;
}

Json request_message(const Json& id, std::string_view method, Json params) {
  Json message = notification_message(method, std::move(params));
  message["id"] = id;
  return message;
}

Json notification_message(std::string_view method, Json params) {
  Json message = empty_message();
  message["method"] = method;
  if (!params.is_null()) message["params"] = std::move(params);
  return message;
}

Json result_message(const Json& id, Json result) {
  Json message = empty_message();
  message["id"] = id;
  message["result"] = std::move(result);
  return message;
}

Json error_message(const Json& id, const ResponseError& error) {
  Json message = empty_message();
  message["id"] = id;
  message["error"] = {{"code", static_cast<int>(error.code())}, {"message", error.what()}};
  return message;
}

}  // namespace kelp::input::quill::language_server
