#ifndef KELP_INPUT_QUILL_LANGUAGE_SERVER_SESSION_INBOX_HPP
#define KELP_INPUT_QUILL_LANGUAGE_SERVER_SESSION_INBOX_HPP

#include <deque>

#include "language_server/protocol/message.hpp"

namespace kelp::input::quill::language_server {

/// The messages that have arrived and wait for their turn, in their order.
class Inbox {
 public:
  void add(Message message) { waiting_.push_back(std::move(message)); }

  bool is_empty() const { return waiting_.empty(); }
  std::size_t size() const { return waiting_.size(); }

  /// Returns the message that waits longest. There is one.
  Message take();

  /// Removes the request with this id. Returns whether it was waiting.
  bool cancel(const Json& id);

 private:
  std::deque<Message> waiting_ = {};
};

}  // namespace kelp::input::quill::language_server

#endif  // KELP_INPUT_QUILL_LANGUAGE_SERVER_SESSION_INBOX_HPP
