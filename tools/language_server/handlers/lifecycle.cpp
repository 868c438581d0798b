#include "language_server/editing/code_actions.hpp"
#include "language_server/handlers/handlers.hpp"
#include "language_server/protocol/response_error.hpp"
#include "language_server/session/client_abilities.hpp"
#include "language_server/session/settings.hpp"

namespace kelp::input::quill::language_server {

namespace {

Json capabilities(const ServerState& state) {
  constexpr int incremental = 2;
  Json capabilities = {
      {"positionEncoding", name_of(state.encoding)},
      {"textDocumentSync",
       {{"openClose", true}, {"change", incremental}, {"save", {{"includeText", false}}}}},
      {"diagnosticProvider",
       {{"identifier", "quill-inp"},
        {"interFileDependencies", true},
        {"workspaceDiagnostics", false}}},
      {"codeActionProvider", code_action_options()},
      {"documentFormattingProvider", true},
      {"documentRangeFormattingProvider", true},
      {"executeCommandProvider", command_options()},
  };
  for (const Feature& feature : all_features())
    capabilities[std::string(feature.capability)] = feature.options;
  return capabilities;
}

}  // namespace

Json initialize(ServerState& state, const Json& params) {
  if (state.phase != Phase::New)
    throw ResponseError(ErrorCode::InvalidRequest, "the server is initialized already");
  const Json& client = find_member(params, "capabilities");
  state.encoding = chosen_encoding(client);
  state.client = abilities_of(client);
  state.settings = settings_of(find_member(params, "initializationOptions"));
  state.phase = Phase::Running;
  return {{"capabilities", capabilities(state)},
          {"serverInfo", {{"name", "quill-inp"}, {"version", state.options.version}}}};
}

Json shut_down(ServerState& state, const Json& /*params*/) {
  state.phase = Phase::ShutDown;
  return nullptr;
}

void exit(ServerState& state, const Json& /*params*/) {
  state.was_shut_down = state.phase == Phase::ShutDown;
  state.phase = Phase::Over;
}

}  // namespace kelp::input::quill::language_server
