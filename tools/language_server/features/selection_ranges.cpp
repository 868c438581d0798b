#include <optional>

#include "language_server/facts/line_pieces.hpp"
#include "language_server/facts/sections.hpp"
#include "language_server/facts/source_of_text.hpp"
#include "language_server/features/features.hpp"

namespace kelp::input::quill::language_server {

namespace {

bool contains(const lint::Range& range, std::size_t offset) {
  return range.offset <= offset && offset <= range.end();
}

/// Returns the ranges around a place from the largest to the smallest: the text, the section, the
/// line and the piece of it.
std::vector<lint::Range> ranges_around(const lint::Source& source,
                                       const std::vector<Section>& sections, std::size_t line,
                                       std::size_t offset) {
  std::vector<lint::Range> ranges = {{0, source.text().size()}};
  const auto narrow_to = [&](const lint::Range& range) {
    const bool is_narrower = range.length > 0 && range.length < ranges.back().length;
    if (is_narrower && contains(range, offset)) ranges.push_back(range);
  };
  for (const Section& section : sections) narrow_to(range_of(section, source.lines()));
  if (line == source.lines().size()) return ranges;
  narrow_to(source.range_of(source.trimmed(line)));
  for (const LinePiece& piece : find_line_pieces(source, line)) {
    if (!contains(piece.range, offset)) continue;
    narrow_to(piece.range);
    break;
  }
  return ranges;
}

Json nested(const Snapshot& snapshot, const std::vector<lint::Range>& ranges) {
  Json selection = nullptr;
  for (const lint::Range& range : ranges) {
    Json inner = {{"range", to_json(snapshot.position_range_of(range))}};
    if (!selection.is_null()) inner["parent"] = std::move(selection);
    selection = std::move(inner);
  }
  return selection;
}

}  // namespace

Json selection_ranges(const Snapshot& snapshot, const Json& params,
                      const Surroundings& /*surroundings*/) {
  const SourceOfText source(snapshot.read());
  const std::vector<Section> sections = find_sections(snapshot.lines());
  Json selections = Json::array();
  for (const Json& position : list_member(params, "positions")) {
    const std::size_t offset = snapshot.offset_of(read_position(position));
    const std::size_t line = snapshot.line_at(offset);
    selections.push_back(nested(snapshot, ranges_around(*source, sections, line, offset)));
  }
  return selections;
}

}  // namespace kelp::input::quill::language_server
