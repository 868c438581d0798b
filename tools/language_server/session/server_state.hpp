#ifndef KELP_INPUT_QUILL_LANGUAGE_SERVER_SESSION_SERVER_STATE_HPP
#define KELP_INPUT_QUILL_LANGUAGE_SERVER_SESSION_SERVER_STATE_HPP

#include <cstddef>
#include <cstdint>
#include <set>
#include <string>
#include <utility>

#include "language_server/documents/open_documents.hpp"
#include "language_server/documents/position_encoding.hpp"
#include "language_server/features/feature.hpp"
#include "language_server/project/project_files.hpp"
#include "language_server/session/checks.hpp"
#include "language_server/session/outbox.hpp"
#include "language_server/session/progress.hpp"

namespace kelp::input::quill::language_server {

/// How a server is run.
struct ServerOptions {
  std::string version = {};                                // of the program
  std::size_t longest_message = std::size_t{64} << 20U;    // in bytes
  std::uint64_t largest_file = std::uint64_t{256} << 20U;  // of those that inputs refer to
  std::string pages_folder = {};                           // with the page of each code
};

/// How far a session is. Only "initialize" is answered before it, and nothing after "shutdown".
enum class Phase { New, Running, ShutDown, Over };

/// All that a session of one client knows. The handlers of messages change it.
struct ServerState {
  ServerState(ServerOptions server_options, Outbox::Send send)
      : options(std::move(server_options)), outbox(std::move(send)) {}
  // Those who wait for answers of the client refer to it.
  ServerState(const ServerState&) = delete;
  ServerState& operator=(const ServerState&) = delete;
  ~ServerState() = default;

  ServerOptions options;
  Outbox outbox;
  Phase phase = Phase::New;
  bool was_shut_down = false;  // when it ended
  PositionEncoding encoding = PositionEncoding::Utf16;
  ClientAbilities client = {};
  Settings settings = {};
  OpenDocuments documents = {};
  ProjectFiles projects = {};
  std::set<std::uint64_t> shown_problems = {};  // with the files of projects
  Checks checks = {};
  Progress progress = {};
};

}  // namespace kelp::input::quill::language_server

#endif  // KELP_INPUT_QUILL_LANGUAGE_SERVER_SESSION_SERVER_STATE_HPP
