#ifndef KELP_INPUT_QUILL_LANGUAGE_SERVER_SERVER_HPP
#define KELP_INPUT_QUILL_LANGUAGE_SERVER_SERVER_HPP

#include <string_view>

#include "language_server/session/inbox.hpp"
#include "language_server/session/server_state.hpp"

namespace kelp::input::quill::language_server {

/// Answers the messages of one client. It reads and writes no stream: who runs it hands in what has
/// arrived, and asks it to work when nothing more has. So cancelled requests are dropped before
/// they cost anything, and many changes are looked at once.
class Server {
 public:
  /// `send` is called with each message for the client.
  Server(ServerOptions options, Outbox::Send send) : state_(std::move(options), std::move(send)) {}

  /// Takes the text of a message. It waits for its turn; only the cancelling of a request that
  /// waits, and answers to the server's own requests, are carried out at once.
  void receive(std::string_view text);

  /// Tells the client that a message could not be taken apart. It may have been a change of a text.
  void refuse(const ResponseError& error);

  /// Whether there is something to do without another message.
  bool has_work() const;

  /// Whether so many messages wait that the server should work before it receives another one: a
  /// thousand, which is more than a client sends while it waits, or as many bytes as the longest
  /// message has, since a message takes several times its bytes.
  bool is_full() const;

  /// Does the next thing: answers a message or, if none waits, checks a text.
  void work();

  bool is_over() const { return state_.phase == Phase::Over; }

  /// Returns 0 if the client asked the server to shut down, and 1 if it just went away.
  int exit_code() const;

 private:
  void cancel(const Message& notification);
  void answer(const Message& request);
  void take(const Message& notification);
  Json result_of(const Message& request);

  ServerState state_;
  Inbox inbox_ = {};
};

}  // namespace kelp::input::quill::language_server

#endif  // KELP_INPUT_QUILL_LANGUAGE_SERVER_SERVER_HPP
