#ifndef KELP_INPUT_QUILL_LANGUAGE_SERVER_EDITING_TEXT_EDITS_HPP
#define KELP_INPUT_QUILL_LANGUAGE_SERVER_EDITING_TEXT_EDITS_HPP

#include <vector>

#include "language_server/documents/snapshot.hpp"
#include "language_server/features/feature.hpp"
#include "language_server/protocol/json.hpp"

namespace kelp::input::quill::language_server {

/// Returns edits of a text as the protocol has them.
Json text_edits(const std::vector<lint::ByteEdit>& edits, const Snapshot& snapshot);

/// Returns edits of one text as an edit of the workspace. For a client that knows versions, it is
/// for this version of the text only.
Json workspace_edit(const std::vector<lint::ByteEdit>& edits, const Snapshot& snapshot,
                    const ClientAbilities& client);

}  // namespace kelp::input::quill::language_server

#endif  // KELP_INPUT_QUILL_LANGUAGE_SERVER_EDITING_TEXT_EDITS_HPP
