#include "language_server/session/client_abilities.hpp"

#include <algorithm>
#include <initializer_list>
#include <optional>

namespace kelp::input::quill::language_server {

namespace {

const Json& find_path(const Json& object, std::initializer_list<const char*> path) {
  const Json* found = &object;
  for (const char* name : path) found = &find_member(*found, name);
  return *found;
}

bool says_true(const Json& object, std::initializer_list<const char*> path) {
  return find_path(object, path) == true;
}

bool contains(const Json& list, std::string_view text) {
  return list.is_array() && std::find(list.begin(), list.end(), text) != list.end();
}

std::optional<PositionEncoding> find_encoding(const Json& name) {
  for (const auto encoding :
       {PositionEncoding::Utf8, PositionEncoding::Utf16, PositionEncoding::Utf32}) {
    if (name == name_of(encoding)) return encoding;
  }
  return std::nullopt;
}

}  // namespace

ClientAbilities abilities_of(const Json& capabilities) {
  ClientAbilities client;
  const Json& text = find_member(capabilities, "textDocument");
  const Json& workspace = find_member(capabilities, "workspace");
  client.has_markdown = contains(find_path(text, {"hover", "contentFormat"}), "markdown");
  client.has_snippets = says_true(text, {"completion", "completionItem", "snippetSupport"});
  client.has_nested_symbols =
      says_true(text, {"documentSymbol", "hierarchicalDocumentSymbolSupport"});
  client.has_line_folding_only = says_true(text, {"foldingRange", "lineFoldingOnly"});
  client.has_literal_code_actions =
      find_path(text, {"codeAction", "codeActionLiteralSupport"}).is_object();
  client.has_progress = says_true(capabilities, {"window", "workDoneProgress"});
  client.has_configuration = says_true(workspace, {"configuration"});
  client.can_register_watchers =
      says_true(workspace, {"didChangeWatchedFiles", "dynamicRegistration"});
  client.can_refresh_diagnostics = says_true(workspace, {"diagnostics", "refreshSupport"});
  client.can_pull_diagnostics = find_member(text, "diagnostic").is_object();
  const Json& published = find_member(text, "publishDiagnostics");
  const Json& tags = find_path(published, {"tagSupport", "valueSet"});
  client.has_unnecessary_tag =
      tags.is_array() && std::find(tags.begin(), tags.end(), 1) != tags.end();
  client.has_related_places = says_true(published, {"relatedInformation"});
  client.has_code_links = says_true(published, {"codeDescriptionSupport"});
  client.has_configuration_events =
      says_true(workspace, {"didChangeConfiguration", "dynamicRegistration"});
  client.can_refresh_hints = says_true(workspace, {"inlayHint", "refreshSupport"});
  client.has_versioned_edits = says_true(workspace, {"workspaceEdit", "documentChanges"});
  return client;
}

PositionEncoding chosen_encoding(const Json& capabilities) {
  const Json& offered = find_path(capabilities, {"general", "positionEncodings"});
  if (contains(offered, name_of(PositionEncoding::Utf8))) return PositionEncoding::Utf8;
  if (offered.is_array()) {
    for (const Json& name : offered) {
      if (const auto encoding = find_encoding(name)) return *encoding;
    }
  }
  return PositionEncoding::Utf16;
}

}  // namespace kelp::input::quill::language_server
