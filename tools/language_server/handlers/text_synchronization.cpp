#include <string>
#include <utility>

#include "language_server/handlers/checking.hpp"
#include "language_server/handlers/handlers.hpp"
#include "language_server/protocol/response_error.hpp"

namespace kelp::input::quill::language_server {

namespace {

std::int64_t version_of(const Json& document) {
  const Json& version = find_member(document, "version");
  if (!version.is_number_integer())
    throw ResponseError(ErrorCode::InvalidParams, "'version' is missing or is not an integer");
  return version.get<std::int64_t>();
}

const std::string& uri_of(const Json& params) {
  return text_member(object_member(params, "textDocument"), "uri");
}

OpenDocument& open_document(ServerState& state, const std::string& uri) {
  OpenDocument* document = state.documents.find(uri);
  if (document == nullptr)
    throw ResponseError(ErrorCode::InvalidParams, "the text " + uri + " is not open");
  return *document;
}

}  // namespace

OpenDocument& document_of(ServerState& state, const Json& params) {
  const std::string& uri = uri_of(params);
  OpenDocument& document = open_document(state, uri);
  if (document.is_lost())
    throw ResponseError(
        ErrorCode::RequestFailed,
        "a change of " + uri + " did not fit; the server waits for all of the text");
  return document;
}

void open_text(ServerState& state, const Json& params) {
  const Json& document = object_member(params, "textDocument");
  state.documents.open(text_member(document, "uri"), version_of(document),
                       text_member(document, "text"), state.encoding);
  note_change(state, text_member(document, "uri"));
}

// What cannot be understood is a change all the same, so that the text is not known any more.
void change_text(ServerState& state, const Json& params) {
  const Json& named = find_member(find_member(params, "textDocument"), "uri");
  if (!named.is_string()) state.documents.lose_all();
  const std::string& uri = uri_of(params);
  OpenDocument& document = open_document(state, uri);
  note_change(state, uri);
  try {
    document.change(version_of(params["textDocument"]), list_member(params, "contentChanges"));
  } catch (const ResponseError&) {
    document.lose();
    throw;
  }
}

// A saved text is the one that was checked, but a file that it refers to may have changed, too.
void take_saved(ServerState& state, const Json& params) { note_change(state, uri_of(params)); }

void close_text(ServerState& state, const Json& params) {
  const std::string& uri = uri_of(params);
  state.documents.close(uri);
  note_change(state, uri);
  state.checks.stop_asking_for(uri);
  if (!state.client.can_pull_diagnostics)
    state.outbox.notify("textDocument/publishDiagnostics",
                        {{"uri", uri}, {"diagnostics", Json::array()}});
}

}  // namespace kelp::input::quill::language_server
