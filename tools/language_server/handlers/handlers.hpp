#ifndef KELP_INPUT_QUILL_LANGUAGE_SERVER_HANDLERS_HANDLERS_HPP
#define KELP_INPUT_QUILL_LANGUAGE_SERVER_HANDLERS_HANDLERS_HPP

#include <string_view>
#include <vector>

#include "language_server/protocol/json.hpp"
#include "language_server/session/server_state.hpp"

// What the server does for each message that is not about a feature of the language. A handler
// reads the parameters that it needs and throws ResponseError for others.

namespace kelp::input::quill::language_server {

/// A request and the function that makes its result.
struct RequestHandler {
  std::string_view method;
  Json (*answer)(ServerState&, const Json& params);
};

/// A notification and what is done about it.
struct NotificationHandler {
  std::string_view method;
  void (*take)(ServerState&, const Json& params);
};

/// All handlers of requests, without those of the table of features, and of notifications.
const std::vector<RequestHandler>& request_handlers();
const std::vector<NotificationHandler>& notification_handlers();

// lifecycle.cpp
Json initialize(ServerState& state, const Json& params);
Json shut_down(ServerState& state, const Json& params);
void exit(ServerState& state, const Json& params);

// configuration.cpp
void take_initialized(ServerState& state, const Json& params);
void change_configuration(ServerState& state, const Json& params);
void take_watched_files(ServerState& state, const Json& params);

// editing_requests.cpp
Json format_text(ServerState& state, const Json& params);
Json format_range(ServerState& state, const Json& params);
Json list_code_actions(ServerState& state, const Json& params);

// commands.cpp
Json execute_command(ServerState& state, const Json& params);
Json command_options();

// pulled_diagnostics.cpp
Json pull_diagnostics(ServerState& state, const Json& params);

// text_synchronization.cpp
void open_text(ServerState& state, const Json& params);
void change_text(ServerState& state, const Json& params);
void take_saved(ServerState& state, const Json& params);
void close_text(ServerState& state, const Json& params);

/// Returns the open text that the parameters of a request name. Throws ResponseError:
/// InvalidParams if it is not open, RequestFailed if it is lost.
OpenDocument& document_of(ServerState& state, const Json& params);

}  // namespace kelp::input::quill::language_server

#endif  // KELP_INPUT_QUILL_LANGUAGE_SERVER_HANDLERS_HANDLERS_HPP
