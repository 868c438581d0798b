#include "editing/expected_lines.hpp"

#include "kelp/core/text.hpp"
#include "kelp/input/quill/lossless/quoting.hpp"
#include "kelp/input/quill/writer.hpp"

namespace kelp::input::quill::lossless {

namespace {

/// The text of a section of one line, without its line end.
std::string only_line(const GeometryBlock& geometry) {
  std::string text = to_string(geometry);
  if (!text.empty()) text.pop_back();
  return text;
}

void add_parts(std::vector<Part>& parts, LineRole role, std::size_t count) {
  for (std::size_t i = 0; i < count; ++i) parts.push_back({role, i});
}

void add_geometry_parts(std::vector<Part>& parts, const GeometryBlock& geometry) {
  if (geometry.has_charge_and_multiplicity) parts.push_back({LineRole::ChargeAndMultiplicity});
  if (geometry.kind == GeometryKind::Atoms) add_parts(parts, LineRole::Atom, geometry.atoms.size());
  if (geometry.kind == GeometryKind::XyzFile)
    add_parts(parts, LineRole::XyzReference, geometry.xyz_files.size());
  if (geometry.kind != GeometryKind::XyzTrajectory) return;
  parts.push_back({LineRole::Trajectory});
  if (!geometry.xyz_files.empty()) parts.back().index = 0;
}

}  // namespace

std::string charge_and_multiplicity_line(const GeometryBlock& geometry) {
  GeometryBlock line;
  line.charge = geometry.charge;
  line.multiplicity = geometry.multiplicity;
  line.has_charge_and_multiplicity = true;
  return only_line(line);
}

std::string atom_line(const AtomRecord& atom) {
  GeometryBlock line;
  line.kind = GeometryKind::Atoms;
  line.atoms.push_back(atom);
  return only_line(line);
}

std::string reference_line(const GeometryBlock& geometry, std::size_t index) {
  GeometryBlock line;
  line.kind = geometry.kind;
  if (index < geometry.xyz_files.size()) line.xyz_files.push_back(geometry.xyz_files[index]);
  return only_line(line);
}

std::vector<Part> list_parts(const QuillInput& input) {
  std::vector<Part> parts;
  add_parts(parts, LineRole::Command, input.commands.size());
  add_geometry_parts(parts, input.geometry);
  add_parts(parts, LineRole::PostCommand, input.post_commands.size());
  return parts;
}

std::string expected_line(const Part& part, const QuillInput& input) {
  switch (part.role) {
    case LineRole::Command:
      return to_string(quote(input.commands[part.index.value()]).command);
    case LineRole::ChargeAndMultiplicity:
      return charge_and_multiplicity_line(input.geometry);
    case LineRole::Atom:
      return atom_line(input.geometry.atoms[part.index.value()]);
    case LineRole::XyzReference:
    case LineRole::Trajectory:
      return reference_line(input.geometry, part.index.value_or(0));
    case LineRole::PostCommand:
      return to_string(input.post_commands[part.index.value()]);
    case LineRole::Blank:
    case LineRole::Dropped:
      break;
  }
  return {};
}

bool may_be_line_of(std::string_view content, const Part& part, const QuillInput& input) {
  const std::string trimmed = core::text::trim(content);
  if (trimmed == core::text::trim(expected_line(part, input))) return true;
  return part.role == LineRole::PostCommand &&
         trimmed == core::text::trim(input.post_commands[part.index.value()].raw_text);
}

}  // namespace kelp::input::quill::lossless
