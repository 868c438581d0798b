#include "language_server/editing/text_edits.hpp"

namespace kelp::input::quill::language_server {

Json text_edits(const std::vector<lint::ByteEdit>& edits, const Snapshot& snapshot) {
  Json list = Json::array();
  for (const lint::ByteEdit& edit : edits)
    list.push_back({{"range", to_json(snapshot.position_range_of(edit.range))},
                    {"newText", edit.replacement}});
  return list;
}

Json workspace_edit(const std::vector<lint::ByteEdit>& edits, const Snapshot& snapshot,
                    const ClientAbilities& client) {
  Json list = text_edits(edits, snapshot);
  if (!client.has_versioned_edits) return {{"changes", {{snapshot.uri(), list}}}};
  const Json text = {{"uri", snapshot.uri()}, {"version", snapshot.version()}};
  return {{"documentChanges", Json::array({{{"textDocument", text}, {"edits", list}}})}};
}

}  // namespace kelp::input::quill::language_server
