#ifndef KELP_INPUT_QUILL_LANGUAGE_SERVER_SESSION_SERVER_STATE_HPP
#define KELP_INPUT_QUILL_LANGUAGE_SERVER_SESSION_SERVER_STATE_HPP

#include <cstddef>
#include <cstdint>
#include <string>

#include "language_server/documents/open_documents.hpp"
#include "language_server/documents/position_encoding.hpp"
#include "language_server/features/feature.hpp"
#include "language_server/session/outbox.hpp"

namespace kelp::input::quill::language_server {

/// How a server is run.
struct ServerOptions {
  std::string version = {};                                // of the program
  std::size_t longest_message = std::size_t{64} << 20U;    // in bytes
  std::uint64_t largest_file = std::uint64_t{256} << 20U;  // of those that inputs refer to
};

/// How far a session is. Only "initialize" is answered before it, and nothing after "shutdown".
enum class Phase { New, Running, ShutDown, Over };

/// All that a session of one client knows. The handlers of messages change it.
struct ServerState {
  ServerState(ServerOptions server_options, Outbox::Send send)
      : options(std::move(server_options)), outbox(std::move(send)) {}

  ServerOptions options;
  Outbox outbox;
  Phase phase = Phase::New;
  bool was_shut_down = false;  // when it ended
  PositionEncoding encoding = PositionEncoding::Utf16;
  ClientAbilities client = {};
  Settings settings = {};
  OpenDocuments documents = {};
};

}  // namespace kelp::input::quill::language_server

#endif  // KELP_INPUT_QUILL_LANGUAGE_SERVER_SESSION_SERVER_STATE_HPP
