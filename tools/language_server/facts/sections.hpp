#ifndef KELP_INPUT_QUILL_LANGUAGE_SERVER_FACTS_SECTIONS_HPP
#define KELP_INPUT_QUILL_LANGUAGE_SERVER_FACTS_SECTIONS_HPP

#include <cstddef>
#include <vector>

#include "kelp/input/quill/lines.hpp"
#include "lint/finding.hpp"

namespace kelp::input::quill::language_server {

/// The parts of an input that may have several lines.
enum class SectionKind { Header, Coordinates, PostProcessing };

/// A part of an input, from its first line to its last one. Blank lines before and after it do not
/// belong to it, and neither does the line of charge and multiplicity.
struct Section {
  SectionKind kind = SectionKind::Header;
  std::size_t first = 0;
  std::size_t last = 0;
};

/// Returns the sections of a text with these lines, in their order, each at most once.
std::vector<Section> find_sections(const std::vector<LineRecord>& lines);

/// Returns where a section is, without the line end of its last line.
lint::Range range_of(const Section& section, const std::vector<LineRecord>& lines);

}  // namespace kelp::input::quill::language_server

#endif  // KELP_INPUT_QUILL_LANGUAGE_SERVER_FACTS_SECTIONS_HPP
