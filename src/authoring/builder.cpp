#include "kelp/input/quill/builder.hpp"

#include "authoring/charge_and_multiplicity.hpp"
#include "kelp/core/geometry.hpp"
#include "kelp/input/quill/editor.hpp"

namespace kelp::input::quill {

namespace {

template <typename Element>
void make_room_for_one_more(std::vector<Element>& list, const std::vector<Element>& source) {
  if (!source.empty()) list.reserve(source.size() + 1);
}

/// Returns a copy whose lists have room for what an operation appends: without that room, appending
/// would move everything that was just copied.
QuillInput copy_with_room(const QuillInput& document) {
  QuillInput copy;
  make_room_for_one_more(copy.commands, document.commands);
  make_room_for_one_more(copy.geometry.atoms, document.geometry.atoms);
  make_room_for_one_more(copy.post_commands, document.post_commands);
  copy = document;
  return copy;
}

}  // namespace

// The editor works on a copy, so that an operation which fails half-way leaves the builder's
// document as it was.
template <typename Operation>
InputBuilder& InputBuilder::edit(Operation operation) {
  InputEditor editor{copy_with_room(document_)};
  operation(editor);
  document_ = editor.document();
  return *this;
}

std::string InputBuilder::to_string() const { return document_.to_string(); }

void InputBuilder::write_file(const std::string& path) const { document_.write_file(path); }

InputBuilder& InputBuilder::set_task(std::string name, std::vector<CommandParameter> parameters) {
  return edit([&](InputEditor& editor) { editor.set_task(name, std::move(parameters)); });
}

InputBuilder& InputBuilder::set_task_parameter(std::string command, std::string key,
                                               std::string value) {
  return edit([&](InputEditor& editor) { editor.set_parameter(command, key, value, 0); });
}

InputBuilder& InputBuilder::set_model(std::string value) {
  return edit([&](InputEditor& editor) { editor.set_model(value); });
}

InputBuilder& InputBuilder::set_device(std::string value) {
  return edit([&](InputEditor& editor) { editor.set_device(value); });
}

InputBuilder& InputBuilder::set_assignment(std::string name, std::string value) {
  return edit([&](InputEditor& editor) { editor.set_assignment(name, value); });
}

InputBuilder& InputBuilder::set_flag(std::string name) {
  return edit([&](InputEditor& editor) { editor.set_flag(name); });
}

InputBuilder& InputBuilder::add_atom(const AtomRecord& atom) {
  return edit([&](InputEditor& editor) { editor.add_atom(atom); });
}

InputBuilder& InputBuilder::add_atom(const core::Atom& atom) {
  return edit([&](InputEditor& editor) { editor.add_atom(atom); });
}

InputBuilder& InputBuilder::set_geometry(const std::vector<AtomRecord>& atoms) {
  return edit([&](InputEditor& editor) { editor.set_geometry(atoms); });
}

InputBuilder& InputBuilder::set_geometry(const core::Geometry& geometry) {
  return edit([&](InputEditor& editor) { editor.set_geometry(geometry); });
}

InputBuilder& InputBuilder::set_xyz_files(std::vector<std::string> files) {
  return edit([&](InputEditor& editor) { editor.set_xyz_files(files); });
}

InputBuilder& InputBuilder::set_xyz_file(std::string path) {
  return edit([&](InputEditor& editor) { editor.set_xyz_file(path); });
}

InputBuilder& InputBuilder::set_xyz_trajectory(std::string path) {
  return edit([&](InputEditor& editor) { editor.set_xyz_trajectory(path); });
}

InputBuilder& InputBuilder::add_atom_constraint(int a) {
  return edit([&](InputEditor& editor) { editor.add_atom_constraint(a); });
}

InputBuilder& InputBuilder::add_bond_constraint(int a, int b) {
  return edit([&](InputEditor& editor) { editor.add_bond_constraint(a, b); });
}

InputBuilder& InputBuilder::add_angle_constraint(int a, int b, int c) {
  return edit([&](InputEditor& editor) { editor.add_angle_constraint(a, b, c); });
}

InputBuilder& InputBuilder::add_dihedral_constraint(int a, int b, int c, int d) {
  return edit([&](InputEditor& editor) { editor.add_dihedral_constraint(a, b, c, d); });
}

InputBuilder& InputBuilder::add_scan(std::vector<int> atoms, double value, int steps) {
  return edit([&](InputEditor& editor) { editor.add_scan(atoms, value, steps); });
}

InputBuilder& InputBuilder::set_post_file(std::string path) {
  return edit([&](InputEditor& editor) { editor.set_post_file(path); });
}

// These need no lookup and cannot leave anything half done, so they work without a copy.

InputBuilder& InputBuilder::add_command(HeaderCommand&& command) {
  document_.commands.push_back(std::move(command));
  return *this;
}

InputBuilder& InputBuilder::add_command(const HeaderCommand& command) {
  document_.commands.push_back(command);
  return *this;
}

InputBuilder& InputBuilder::set_charge_and_multiplicity(int charge, int multiplicity) {
  assign_charge_and_multiplicity(document_.geometry, charge, multiplicity);
  return *this;
}

InputBuilder& InputBuilder::clear_charge_and_multiplicity() {
  reset_charge_and_multiplicity(document_.geometry);
  return *this;
}

InputBuilder& InputBuilder::add_post_command(PostCommand&& command) {
  document_.post_commands.push_back(std::move(command));
  return *this;
}

InputBuilder& InputBuilder::add_post_command(const PostCommand& command) {
  document_.post_commands.push_back(command);
  return *this;
}

}  // namespace kelp::input::quill
