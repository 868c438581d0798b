#ifndef KELP_INPUT_QUILL_LANGUAGE_SERVER_SESSION_OUTBOX_HPP
#define KELP_INPUT_QUILL_LANGUAGE_SERVER_SESSION_OUTBOX_HPP

#include <cstdint>
#include <functional>
#include <map>
#include <string_view>

#include "language_server/protocol/message.hpp"

namespace kelp::input::quill::language_server {

/// What a message of the server is for the person who uses the client.
enum class MessageType : int { Error = 1, Warning = 2, Info = 3, Log = 4 };

/// Sends messages to the client, and knows which of the server's requests have no answer yet.
class Outbox {
 public:
  using Send = std::function<void(const Json&)>;
  using OnAnswer = std::function<void(const Message&)>;

  explicit Outbox(Send send) : send_(std::move(send)) {}

  void answer(const Json& id, Json result) { send_(result_message(id, std::move(result))); }
  void refuse(const Json& id, const ResponseError& error) { send_(error_message(id, error)); }
  void notify(std::string_view method, Json params) {
    send_(notification_message(method, std::move(params)));
  }

  /// Sends a request. `on_answer` is called with its answer, if one comes.
  void request(std::string_view method, Json params, OnAnswer on_answer);

  /// Passes an answer on to who waits for it. One that nobody waits for is ignored.
  void take_answer(const Message& answer);

  /// Shows a message to the user.
  void show(MessageType type, std::string_view text);

  /// Writes a message where the client keeps those of its servers.
  void log(MessageType type, std::string_view text);

 private:
  Send send_;
  std::int64_t last_id_ = 0;
  std::map<Json, OnAnswer> waiting_ = {};
};

}  // namespace kelp::input::quill::language_server

#endif  // KELP_INPUT_QUILL_LANGUAGE_SERVER_SESSION_OUTBOX_HPP
