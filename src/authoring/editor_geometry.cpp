#include <utility>

#include "kelp/core/geometry.hpp"
#include "kelp/input/quill/editor.hpp"

namespace kelp::input::quill {

namespace {

AtomRecord to_record(const core::Atom& atom) {
  return AtomRecord{atom.symbol, atom.x, atom.y, atom.z};
}

}  // namespace

// The new list is complete before the old one is removed, so that running out of memory never
// leaves a list that is half old and half new. The kind is set first; then the lists that it does
// not use are emptied, in the order that the comments in the header promise after a failure.

void InputEditor::set_geometry(const std::vector<AtomRecord>& atoms) {
  GeometryBlock& geometry = document_.geometry;
  geometry.kind = GeometryKind::Atoms;
  if (&atoms != &geometry.atoms) geometry.atoms = std::vector<AtomRecord>(atoms);
  geometry.xyz_files.clear();
}

void InputEditor::set_geometry(const core::Geometry& geometry) {
  std::vector<AtomRecord> atoms;
  atoms.reserve(geometry.atoms.size());
  for (const core::Atom& atom : geometry.atoms) atoms.push_back(to_record(atom));
  set_geometry(atoms);
}

void InputEditor::set_xyz_files(const std::vector<std::string>& files) {
  GeometryBlock& geometry = document_.geometry;
  geometry.kind = GeometryKind::XyzFile;
  geometry.atoms.clear();
  if (&files != &geometry.xyz_files) geometry.xyz_files = std::vector<std::string>(files);
}

void InputEditor::set_xyz_file(std::string_view path) {
  set_xyz_files(std::vector<std::string>(1, std::string(path)));
}

void InputEditor::set_xyz_trajectory(std::string_view path) {
  GeometryBlock& geometry = document_.geometry;
  geometry.kind = GeometryKind::XyzTrajectory;
  geometry.atoms.clear();
  geometry.xyz_files = std::vector<std::string>(1, std::string(path));
}

void InputEditor::add_atom(const AtomRecord& atom) {
  GeometryBlock& geometry = document_.geometry;
  AtomRecord added = atom;  // comes first, since `atom` may be one of those that are removed next
  if (geometry.kind != GeometryKind::Atoms) {
    geometry.atoms.reserve(1);
    geometry.kind = GeometryKind::Atoms;
    geometry.atoms.clear();
    geometry.xyz_files.clear();
  }
  geometry.atoms.push_back(std::move(added));
}

void InputEditor::add_atom(const core::Atom& atom) { add_atom(to_record(atom)); }

void InputEditor::add_post_command(const PostCommand& command) {
  document_.post_commands.push_back(command);
}

void InputEditor::add_post_command(PostCommand&& command) {
  document_.post_commands.push_back(std::move(command));
}

void InputEditor::clear_post_commands() { document_.post_commands.clear(); }

void InputEditor::add_atom_constraint(int a) {
  add_post_command(PostCommand{PostCommandKind::AtomConstraint, {a}});
}

void InputEditor::add_bond_constraint(int a, int b) {
  add_post_command(PostCommand{PostCommandKind::BondConstraint, {a, b}});
}

void InputEditor::add_angle_constraint(int a, int b, int c) {
  add_post_command(PostCommand{PostCommandKind::AngleConstraint, {a, b, c}});
}

void InputEditor::add_dihedral_constraint(int a, int b, int c, int d) {
  add_post_command(PostCommand{PostCommandKind::DihedralConstraint, {a, b, c, d}});
}

void InputEditor::add_scan(const std::vector<int>& atoms, double value, int steps) {
  add_post_command(PostCommand{PostCommandKind::Scan, atoms, value, steps});
}

void InputEditor::set_post_file(std::string_view path) {
  PostCommand command(PostCommandKind::PostFile);
  command.post_file = std::string(path);
  add_post_command(std::move(command));
}

}  // namespace kelp::input::quill
