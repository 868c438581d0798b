#ifndef KELP_INPUT_QUILL_LANGUAGE_SERVER_PROTOCOL_MESSAGE_HPP
#define KELP_INPUT_QUILL_LANGUAGE_SERVER_PROTOCOL_MESSAGE_HPP

#include <string>
#include <string_view>

#include "language_server/protocol/json.hpp"
#include "language_server/protocol/response_error.hpp"

namespace kelp::input::quill::language_server {

/// A message from the client.
struct Message {
  enum class Kind {
    Request,       // has `id` and `method`, and gets an answer
    Notification,  // has `method`
    Response,      // answers the request `id` of the server; `is_error` says whether it failed
    Unknown,       // could not be understood, and may have been anything
  };

  // The constructor from a null pointer says that it throws nothing, and calls another one that
  // may.
  static constexpr auto null = Json::value_t::null;

  Kind kind = Kind::Notification;
  Json id = null;  // an integer or a text
  std::string method = {};
  Json params = null;  // of any kind; handlers refuse what they cannot use
  bool is_error = false;
  Json result = null;  // of a response
};

/// Takes a message apart. Throws ResponseError: ParseError for a text that is not JSON,
/// InvalidRequest for JSON that is not a message.
Message parse_message(std::string_view text);

/// Return messages for the client.
Json request_message(const Json& id, std::string_view method, Json params);
Json notification_message(std::string_view method, Json params);
Json result_message(const Json& id, Json result);
Json error_message(const Json& id, const ResponseError& error);

}  // namespace kelp::input::quill::language_server

#endif  // KELP_INPUT_QUILL_LANGUAGE_SERVER_PROTOCOL_MESSAGE_HPP
