#ifndef KELP_INPUT_QUILL_LANGUAGE_SERVER_SESSION_INBOX_HPP
#define KELP_INPUT_QUILL_LANGUAGE_SERVER_SESSION_INBOX_HPP

#include <cstddef>
#include <deque>

#include "language_server/protocol/message.hpp"

namespace kelp::input::quill::language_server {

/// The messages that have arrived and wait for their turn, in their order.
class Inbox {
 public:
  /// Adds a message that came as a text of so many bytes.
  void add(Message message, std::size_t bytes);

  bool is_empty() const { return waiting_.empty(); }

  /// Return how many messages wait, and the sum of their bytes.
  std::size_t size() const { return waiting_.size(); }
  std::size_t bytes() const { return bytes_; }

  /// Returns the message that waits longest. There is one.
  Message take();

  /// Removes the request with this id. Returns whether it was waiting.
  bool cancel(const Json& id);

 private:
  struct Waiting {
    Message message;
    std::size_t bytes;
  };

  std::deque<Waiting> waiting_ = {};
  std::size_t bytes_ = 0;
};

}  // namespace kelp::input::quill::language_server

#endif  // KELP_INPUT_QUILL_LANGUAGE_SERVER_SESSION_INBOX_HPP
