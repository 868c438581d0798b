#include "language_server/facts/sections.hpp"
#include "language_server/features/features.hpp"

namespace kelp::input::quill::language_server {

Json folding_ranges(const Snapshot& snapshot, const Surroundings& /*surroundings*/) {
  Json ranges = Json::array();
  for (const Section& section : find_sections(snapshot.lines())) {
    const Position start = snapshot.position_of(snapshot.lines()[section.first].offset);
    const Position end = snapshot.position_of(snapshot.lines()[section.last].offset);
    if (start.line == end.line) continue;
    ranges.push_back({{"startLine", start.line}, {"endLine", end.line}, {"kind", "region"}});
  }
  return ranges;
}

}  // namespace kelp::input::quill::language_server
