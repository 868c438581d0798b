#include <string>

#include "language_server/handlers/checking.hpp"
#include "language_server/handlers/handlers.hpp"
#include "language_server/project/file_address.hpp"
#include "language_server/session/settings.hpp"

namespace kelp::input::quill::language_server {

namespace {

void register_for(ServerState& state, const std::string& method, Json options) {
  const Json registration = {{"id", method}, {"method", method}, {"registerOptions", options}};
  state.outbox.request("client/registerCapability",
                       {{"registrations", Json::array({registration})}}, [](const Message&) {});
}

/// The files beside the open texts that findings depend on.
Json watched_files() {
  Json watchers = Json::array();
  watchers.push_back({{"globPattern", "**/" + std::string(tool::project_file_name)}});
  watchers.push_back({{"globPattern", "**/*.xyz"}});
  return {{"watchers", watchers}};
}

void take_settings(ServerState& state, const Json& section) {
  state.settings = settings_of(section);
  note_new_choices(state);
  if (state.client.can_refresh_hints)
    state.outbox.request("workspace/inlayHint/refresh", nullptr, [](const Message&) {});
}

void ask_for_settings(ServerState& state) {
  const Json item = {{"section", settings_section}};
  state.outbox.request("workspace/configuration", {{"items", Json::array({item})}},
                       [&state](const Message& answer) {
                         if (answer.result.is_array() && answer.result.size() == 1)
                           take_settings(state, answer.result[0]);
                       });
}

}  // namespace

void take_initialized(ServerState& state, const Json& /*params*/) {
  if (state.client.can_register_watchers)
    register_for(state, "workspace/didChangeWatchedFiles", watched_files());
  if (state.client.has_configuration_events)
    register_for(state, "workspace/didChangeConfiguration", {{"section", settings_section}});
  if (state.client.has_configuration) ask_for_settings(state);
  if (state.client.has_progress) state.progress.prepare(state.outbox);
}

void change_configuration(ServerState& state, const Json& params) {
  const Json& section = find_member(find_member(params, "settings"), settings_section);
  if (section.is_object()) {
    take_settings(state, section);
  } else if (state.client.has_configuration) {
    ask_for_settings(state);
  }
}

void take_watched_files(ServerState& state, const Json& params) {
  for (const Json& change : list_member(params, "changes")) {
    const std::string path = path_of_address(text_member(change, "uri"));
    const std::string name = path.substr(path.rfind('/') + 1);
    if (name == tool::project_file_name) {
      note_new_choices(state);
    } else {
      note_file_change(state, path);
    }
  }
}

}  // namespace kelp::input::quill::language_server
