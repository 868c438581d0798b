#include <string>

#include "language_server/editing/changed_lines.hpp"
#include "language_server/editing/code_actions.hpp"
#include "language_server/editing/formatted_text.hpp"
#include "language_server/editing/text_edits.hpp"
#include "language_server/handlers/checking.hpp"
#include "language_server/handlers/handlers.hpp"

namespace kelp::input::quill::language_server {

Json format_text(ServerState& state, const Json& params) {
  const Snapshot& snapshot = document_of(state, params).snapshot();
  return text_edits(changed_lines(snapshot.text(), formatted_text(snapshot.read())), snapshot);
}

Json format_range(ServerState& state, const Json& params) {
  const Snapshot& snapshot = document_of(state, params).snapshot();
  const lint::Range range = snapshot.range_of(read_range(object_member(params, "range")));
  return text_edits(formatting_of_range(snapshot.read(), range), snapshot);
}

Json list_code_actions(ServerState& state, const Json& params) {
  OpenDocument& document = document_of(state, params);
  const Snapshot& snapshot = document.snapshot();
  const lint::Range range = snapshot.range_of(read_range(object_member(params, "range")));
  const Corrections corrections{check_of(state, document).found.findings,
                                [&] { return mended_text(state, document); }};
  return code_actions(snapshot, range, object_member(params, "context"), corrections, state.client);
}

}  // namespace kelp::input::quill::language_server
