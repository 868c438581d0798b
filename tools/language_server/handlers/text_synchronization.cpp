#include <string>
#include <utility>

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

}  // namespace

OpenDocument& document_of(ServerState& state, const Json& params) {
  const std::string& uri = uri_of(params);
  OpenDocument* document = state.documents.find(uri);
  if (document == nullptr)
    throw ResponseError(ErrorCode::InvalidParams, "the text " + uri + " is not open");
  if (document->is_lost())
    throw ResponseError(
        ErrorCode::RequestFailed,
        "a change of " + uri + " did not fit; the server waits for all of the text");
  return *document;
}

void open_text(ServerState& state, const Json& params) {
  const Json& document = object_member(params, "textDocument");
  state.documents.open(text_member(document, "uri"), version_of(document),
                       text_member(document, "text"), state.encoding);
}

void change_text(ServerState& state, const Json& params) {
  const std::string& uri = uri_of(params);
  OpenDocument* document = state.documents.find(uri);
  if (document == nullptr)
    throw ResponseError(ErrorCode::InvalidParams, "the text " + uri + " is not open");
  document->change(version_of(object_member(params, "textDocument")),
                   list_member(params, "contentChanges"));
}

void take_saved(ServerState&, const Json&) {}

void close_text(ServerState& state, const Json& params) { state.documents.close(uri_of(params)); }

}  // namespace kelp::input::quill::language_server
