#include "language_server/facts/sections.hpp"

#include <optional>

namespace kelp::input::quill::language_server {

namespace {

std::optional<SectionKind> section_of(LineRole role) {
  switch (role) {
    case LineRole::Command:
      return SectionKind::Header;
    case LineRole::Atom:
    case LineRole::XyzReference:
    case LineRole::Trajectory:
      return SectionKind::Coordinates;
    case LineRole::PostCommand:
    case LineRole::Dropped:
      return SectionKind::PostProcessing;
    case LineRole::Blank:
    case LineRole::ChargeAndMultiplicity:
      break;
  }
  return std::nullopt;
}

}  // namespace

std::vector<Section> find_sections(const std::vector<LineRecord>& lines) {
  std::vector<Section> sections;
  for (std::size_t i = 0; i < lines.size(); ++i) {
    const std::optional<SectionKind> kind = section_of(lines[i].role);
    if (!kind) continue;
    if (sections.empty() || sections.back().kind != *kind) sections.push_back({*kind, i, i});
    sections.back().last = i;
  }
  return sections;
}

lint::Range range_of(const Section& section, const std::vector<LineRecord>& lines) {
  const LineRecord& last = lines[section.last];
  const std::size_t begin = lines[section.first].offset;
  return {begin, last.offset + last.length - begin};
}

}  // namespace kelp::input::quill::language_server
