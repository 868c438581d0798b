#include "language_server/facts/outline.hpp"

#include <utility>

#include "kelp/input/quill/lossless/wording.hpp"
#include "language_server/facts/sections.hpp"
#include "quill-inp/summary/part_words.hpp"
#include "quill-inp/text/counted.hpp"
#include "reader/header_pieces.hpp"

namespace kelp::input::quill::language_server {

namespace {

OutlinePart part_of_line(const lint::Source& source, std::size_t line, PartKind kind,
                         std::string name, std::string detail) {
  const lint::Range range = source.range_of(source.trimmed(line));
  return {kind, std::move(name), std::move(detail), range, range};
}

/// Returns what a command says besides its name.
std::string_view content_of(const HeaderPieces& pieces) {
  return pieces.kind == HeaderCommandKind::ParameterList ? trimmed_view(pieces.list) : pieces.value;
}

OutlinePart command_part(const lint::Source& source, std::size_t index) {
  const HeaderPieces& pieces = source.header_pieces()[index];
  return part_of_line(source, source.command_lines()[index], PartKind::Command,
                      "#" + std::string(pieces.name), std::string(content_of(pieces)));
}

OutlinePart charge_part(const lint::Source& source) {
  const GeometryBlock& geometry = source.input().geometry;
  return part_of_line(
      source, source.charge_line(), PartKind::Charge,
      lossless::describe({LineRole::ChargeAndMultiplicity, std::nullopt}, source.input()),
      std::to_string(geometry.charge) + " " + std::to_string(geometry.multiplicity));
}

OutlinePart post_part(const lint::Source& source, std::size_t index) {
  const PostCommand& command = source.input().post_commands[index];
  return part_of_line(source, source.post_lines()[index], PartKind::PostLine,
                      tool::content_words(command), std::string(lossless::noun_of(command.kind)));
}

void fill(OutlinePart& part, const Section& section, const lint::Source& source) {
  if (section.kind == SectionKind::Header) {
    part.kind = PartKind::Header;
    part.name = "header";
    part.detail = tool::counted(source.command_lines().size(), "command");
    for (std::size_t i = 0; i < source.command_lines().size(); ++i)
      part.children.push_back(command_part(source, i));
  } else if (section.kind == SectionKind::Coordinates) {
    part.kind = PartKind::Coordinates;
    part.name = "coordinates";
    part.detail = tool::content_words(source.input().geometry);
    for (const std::size_t line : source.reference_lines())
      part.children.push_back(
          part_of_line(source, line, PartKind::Reference,
                       source.input().geometry.xyz_files[*source.lines()[line].index], {}));
  } else {
    part.kind = PartKind::PostProcessing;
    part.name = "post-processing";
    part.detail = tool::counted(source.post_lines().size(), "line");
    for (std::size_t i = 0; i < source.post_lines().size(); ++i)
      part.children.push_back(post_part(source, i));
  }
}

}  // namespace

std::vector<OutlinePart> make_outline(const lint::Source& source) {
  std::vector<OutlinePart> parts;
  bool has_charge = !source.input().geometry.has_charge_and_multiplicity;
  const auto add_charge = [&] {
    if (!std::exchange(has_charge, true)) parts.push_back(charge_part(source));
  };
  for (const Section& section : find_sections(source.lines())) {
    if (section.kind != SectionKind::Header) add_charge();
    OutlinePart part;
    part.range = range_of(section, source.lines());
    part.heading = source.range_of(source.trimmed(section.first));
    fill(part, section, source);
    parts.push_back(std::move(part));
  }
  add_charge();
  return parts;
}

}  // namespace kelp::input::quill::language_server
