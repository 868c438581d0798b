#include "language_server/session/inbox.hpp"

#include <algorithm>
#include <utility>

namespace kelp::input::quill::language_server {

Message Inbox::take() {
  Message message = std::move(waiting_.front());
  waiting_.pop_front();
  return message;
}

bool Inbox::cancel(const Json& id) {
  const auto request = std::find_if(waiting_.begin(), waiting_.end(), [&](const Message& message) {
    return message.kind == Message::Kind::Request && message.id == id;
  });
  if (request == waiting_.end()) return false;
  waiting_.erase(request);
  return true;
}

}  // namespace kelp::input::quill::language_server
