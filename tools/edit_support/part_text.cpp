#include "edit_support/part_text.hpp"

#include "kelp/input/quill/writer.hpp"

namespace kelp::input::quill::edit_support {

namespace {

/// The text of a section of one line, without that line's end.
std::string only_line(const GeometryBlock& geometry) {
  std::string text = to_string(geometry);
  if (!text.empty()) text.pop_back();
  return text;
}

}  // namespace

std::string charge_and_multiplicity_text(const GeometryBlock& geometry) {
  GeometryBlock line;
  line.charge = geometry.charge;
  line.multiplicity = geometry.multiplicity;
  line.has_charge_and_multiplicity = true;
  return only_line(line);
}

std::string atom_text(const AtomRecord& atom) {
  GeometryBlock line;
  line.kind = GeometryKind::Atoms;
  line.atoms.push_back(atom);
  return only_line(line);
}

std::string reference_text(const GeometryBlock& geometry, std::size_t index) {
  GeometryBlock line;
  line.kind = geometry.kind;
  if (index < geometry.xyz_files.size()) line.xyz_files.push_back(geometry.xyz_files[index]);
  return only_line(line);
}

}  // namespace kelp::input::quill::edit_support
