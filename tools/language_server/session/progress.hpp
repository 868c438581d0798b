#ifndef KELP_INPUT_QUILL_LANGUAGE_SERVER_SESSION_PROGRESS_HPP
#define KELP_INPUT_QUILL_LANGUAGE_SERVER_SESSION_PROGRESS_HPP

#include <cstdint>
#include <optional>
#include <string>

#include "language_server/session/outbox.hpp"

namespace kelp::input::quill::language_server {

/// Shows the client that something takes long. Each time needs a token that the client has agreed
/// to, so one is asked for in advance; without one, nothing is shown.
class Progress {
 public:
  /// Asks for a token, for the next time.
  void prepare(Outbox& outbox);

  /// Begin to show a piece of work, show how much of it is done, and end.
  void begin(Outbox& outbox, const std::string& title);
  void report(Outbox& outbox, int percentage);
  void end(Outbox& outbox);

 private:
  void send(Outbox& outbox, Json value) const;

  std::int64_t last_ = 0;
  std::optional<std::int64_t> ready_ = std::nullopt;
  std::optional<std::int64_t> shown_ = std::nullopt;
};

}  // namespace kelp::input::quill::language_server

#endif  // KELP_INPUT_QUILL_LANGUAGE_SERVER_SESSION_PROGRESS_HPP
