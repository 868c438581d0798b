#include <optional>

#include "language_server/features/features.hpp"

namespace kelp::input::quill::language_server {

namespace {

enum class Section { None, Header, Coordinates, PostProcessing };

/// Blank lines, and the line of charge and multiplicity, are in no section.
Section section_of(LineRole role) {
  switch (role) {
    case LineRole::Command:
      return Section::Header;
    case LineRole::Atom:
    case LineRole::XyzReference:
    case LineRole::Trajectory:
      return Section::Coordinates;
    case LineRole::PostCommand:
    case LineRole::Dropped:
      return Section::PostProcessing;
    case LineRole::Blank:
    case LineRole::ChargeAndMultiplicity:
      break;
  }
  return Section::None;
}

/// From the first line of a section to its last one.
struct Fold {
  Section section = Section::None;
  std::size_t first = 0;
  std::size_t last = 0;
};

std::vector<Fold> find_folds(const std::vector<LineRecord>& lines) {
  std::vector<Fold> folds;
  for (std::size_t i = 0; i < lines.size(); ++i) {
    const Section section = section_of(lines[i].role);
    if (section == Section::None) continue;
    if (folds.empty() || folds.back().section != section) folds.push_back({section, i, i});
    folds.back().last = i;
  }
  return folds;
}

}  // namespace

Json folding_ranges(const Snapshot& snapshot, const Surroundings&) {
  Json ranges = Json::array();
  for (const Fold& fold : find_folds(snapshot.lines())) {
    const Position start = snapshot.position_of(snapshot.lines()[fold.first].offset);
    const Position end = snapshot.position_of(snapshot.lines()[fold.last].offset);
    if (start.line == end.line) continue;
    ranges.push_back({{"startLine", start.line}, {"endLine", end.line}, {"kind", "region"}});
  }
  return ranges;
}

}  // namespace kelp::input::quill::language_server
