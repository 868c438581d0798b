#include "language_server/features/features.hpp"
#include "reader/header_pieces.hpp"

namespace kelp::input::quill::language_server {

Json inlay_hints(const Snapshot& snapshot, const lint::Range& range,
                 const Surroundings& surroundings) {
  Json hints = Json::array();
  if (!surroundings.settings.shows_atom_numbers) return hints;
  const std::vector<LineRecord>& lines = snapshot.lines();
  for (std::size_t i = snapshot.line_at(range.offset); i < lines.size(); ++i) {
    if (lines[i].offset > range.end()) break;
    if (lines[i].role != LineRole::Atom) continue;
    const std::size_t symbol = snapshot.range_of(trimmed_view(snapshot.content(i))).offset;
    hints.push_back({{"position", to_json(snapshot.position_of(symbol))},
                     {"label", std::to_string(*lines[i].index + 1)},
                     {"paddingRight", true}});
  }
  return hints;
}

}  // namespace kelp::input::quill::language_server
