#include "language_server/run.hpp"

#include <string>

#include "language_server/framing/message_reader.hpp"
#include "language_server/framing/message_writer.hpp"
#include "language_server/server.hpp"

namespace kelp::input::quill::language_server {

namespace {

/// Takes the next message. Returns whether another one can come.
bool take_message(MessageReader& reader, Server& server) {
  const Incoming incoming = reader.read();
  switch (incoming.kind) {
    case Incoming::Kind::Message:
      server.receive(incoming.text);
      return true;
    case Incoming::Kind::TooLong:
      server.refuse({ErrorCode::InvalidRequest, "the message is too long"});
      return true;
    case Incoming::Kind::Unframed:
      server.refuse({ErrorCode::ParseError, "a header has no valid Content-Length"});
      return false;
    case Incoming::Kind::End:
      break;
  }
  return false;
}

}  // namespace

int run(std::istream& in, std::ostream& out, const ServerOptions& options) {
  MessageReader reader(in, options.longest_message);
  Server server(options, [&](const Json& message) { write_message(out, json_text(message)); });
  bool can_read = true;
  while (!server.is_over() && out) {
    const bool wants_more = !server.has_work() || (!server.is_full() && reader.has_arrived());
    if (can_read && wants_more) {
      can_read = take_message(reader, server);
    } else if (server.has_work()) {
      server.work();
    } else {
      break;
    }
  }
  return server.exit_code();
}

}  // namespace kelp::input::quill::language_server
