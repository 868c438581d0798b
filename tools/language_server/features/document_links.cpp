#include "language_server/facts/line_pieces.hpp"
#include "language_server/facts/source_of_text.hpp"
#include "language_server/features/features.hpp"
#include "language_server/protocol/address.hpp"

namespace kelp::input::quill::language_server {

Json document_links(const Snapshot& snapshot, const Surroundings& /*surroundings*/) {
  const SourceOfText source(snapshot.read());
  Json links = Json::array();
  for (const std::size_t line : source->reference_lines()) {
    const std::string& path = source->input().geometry.xyz_files[*source->lines()[line].index];
    const std::optional<std::string> uri = address_of_reference(snapshot.uri(), path);
    if (!uri) continue;
    for (const LinePiece& piece : find_line_pieces(*source, line)) {
      if (piece.kind != PieceKind::Path) continue;
      const PositionRange range = snapshot.position_range_of(piece.range);
      links.push_back({{"range", to_json(range)}, {"target", *uri}});
    }
  }
  return links;
}

}  // namespace kelp::input::quill::language_server
