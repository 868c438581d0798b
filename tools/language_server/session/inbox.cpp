#include "language_server/session/inbox.hpp"

#include <algorithm>
#include <utility>

namespace kelp::input::quill::language_server {

void Inbox::add(Message message, std::size_t bytes) {
  waiting_.push_back({std::move(message), bytes});
  bytes_ += bytes;
}

Message Inbox::take() {
  Message message = std::move(waiting_.front().message);
  bytes_ -= waiting_.front().bytes;
  waiting_.pop_front();
  return message;
}

bool Inbox::cancel(const Json& id) {
  const auto request = std::find_if(waiting_.begin(), waiting_.end(), [&](const Waiting& one) {
    return one.message.kind == Message::Kind::Request && one.message.id == id;
  });
  if (request == waiting_.end()) return false;
  bytes_ -= request->bytes;
  waiting_.erase(request);
  return true;
}

}  // namespace kelp::input::quill::language_server
