#include "language_server/session/outbox.hpp"

#include <utility>

namespace kelp::input::quill::language_server {

void Outbox::request(std::string_view method, Json params, OnAnswer on_answer) {
  const Json id = ++last_id_;
  waiting_.emplace(id, std::move(on_answer));
  send_(request_message(id, method, std::move(params)));
}

void Outbox::take_answer(const Message& answer) {
  auto waiting = waiting_.extract(answer.id);
  if (!waiting.empty()) waiting.mapped()(answer);
}

void Outbox::show(MessageType type, std::string_view text) {
  notify("window/showMessage", {{"type", static_cast<int>(type)}, {"message", text}});
}

void Outbox::log(MessageType type, std::string_view text) {
  notify("window/logMessage", {{"type", static_cast<int>(type)}, {"message", text}});
}

}  // namespace kelp::input::quill::language_server
