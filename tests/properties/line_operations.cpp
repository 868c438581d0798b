#include "properties/line_operations.hpp"

#include "kelp/core/geometry.hpp"
#include "properties/edit_arguments.hpp"
#include "properties/edit_model.hpp"
#include "properties/made_document.hpp"

namespace kelp::input::quill {

namespace {

core::Atom to_core(const AtomRecord& atom) { return {atom.symbol, atom.x, atom.y, atom.z}; }

core::Geometry to_core(const std::vector<AtomRecord>& atoms) {
  core::Geometry geometry;
  for (const AtomRecord& atom : atoms) geometry.atoms.push_back(to_core(atom));
  return geometry;
}

void set_atoms_kind(QuillInput& m) { m.geometry.kind = GeometryKind::Atoms; }

std::function<void(QuillInput&)> lose_atoms_to(GeometryKind kind) {
  return [kind](QuillInput& m) {
    m.geometry.kind = kind;
    m.geometry.atoms.clear();
  };
}

template <typename Edit>
EditOperation constraint(PostCommandKind kind, const std::vector<std::int32_t>& atoms, Edit edit) {
  return change(
      edit, [=](QuillInput& m) { m.post_commands.push_back(PostCommand(kind, atoms)); }, edit);
}

}  // namespace

EditOperation make_set_charge_and_multiplicity(ByteSource& source, const QuillInput& /*document*/) {
  const int charge = source.integer();
  const int multiplicity = source.integer();
  return change([=](InputEditor& e) { e.set_charge_and_multiplicity(charge, multiplicity); },
                [=](QuillInput& m) {
                  m.geometry.charge = charge;
                  m.geometry.multiplicity = multiplicity;
                  m.geometry.has_charge_and_multiplicity = true;
                },
                [=](InputBuilder& b) { b.set_charge_and_multiplicity(charge, multiplicity); });
}

EditOperation make_clear_charge_and_multiplicity(ByteSource& /*source*/,
                                                 const QuillInput& /*document*/) {
  return change([](InputEditor& e) { e.clear_charge_and_multiplicity(); },
                [](QuillInput& m) {
                  m.geometry.charge = 0;
                  m.geometry.multiplicity = 1;
                  m.geometry.has_charge_and_multiplicity = false;
                },
                [](InputBuilder& b) { b.clear_charge_and_multiplicity(); });
}

EditOperation make_add_atom(ByteSource& source, const QuillInput& document) {
  const ElementArgument<AtomRecord> atom(source, document.geometry.atoms, made_atom);
  return change([=](InputEditor& e) { e.add_atom(atom.in(e.document().geometry.atoms)); },
                [=](QuillInput& m) { model::add_atom(m, atom.copy()); },
                [=](InputBuilder& b) { b.add_atom(atom.in(b.document().geometry.atoms)); });
}

EditOperation make_add_core_atom(ByteSource& source, const QuillInput& /*document*/) {
  const AtomRecord atom = made_atom(source);
  return change([=](InputEditor& e) { e.add_atom(to_core(atom)); },
                [=](QuillInput& m) { model::add_atom(m, atom); },
                [=](InputBuilder& b) { b.add_atom(to_core(atom)); });
}

EditOperation make_set_geometry(ByteSource& source, const QuillInput& document) {
  const ListArgument<AtomRecord> atoms(source, document.geometry.atoms, made_atoms);
  return change([=](InputEditor& e) { e.set_geometry(atoms.in(e.document().geometry.atoms)); },
                [=](QuillInput& m) { model::set_atoms(m, atoms.copy()); },
                [=](InputBuilder& b) { b.set_geometry(atoms.in(b.document().geometry.atoms)); },
                set_atoms_kind);
}

EditOperation make_set_core_geometry(ByteSource& source, const QuillInput& /*document*/) {
  const std::vector<AtomRecord> atoms = made_atoms(source);
  return change([=](InputEditor& e) { e.set_geometry(to_core(atoms)); },
                [=](QuillInput& m) { model::set_atoms(m, atoms); },
                [=](InputBuilder& b) { b.set_geometry(to_core(atoms)); }, set_atoms_kind);
}

EditOperation make_set_xyz_files(ByteSource& source, const QuillInput& document) {
  const ListArgument<std::string> paths(source, document.geometry.xyz_files, made_paths);
  return change(
      [=](InputEditor& e) { e.set_xyz_files(paths.in(e.document().geometry.xyz_files)); },
      [=](QuillInput& m) { model::set_paths(m, GeometryKind::XyzFile, paths.copy()); },
      [=](InputBuilder& b) { b.set_xyz_files(paths.in(b.document().geometry.xyz_files)); },
      lose_atoms_to(GeometryKind::XyzFile));
}

EditOperation make_set_xyz_file(ByteSource& source, const QuillInput& document) {
  const TextArgument path(source, document);
  return change([=](InputEditor& e) { e.set_xyz_file(path.in(e.document())); },
                [=](QuillInput& m) { model::set_paths(m, GeometryKind::XyzFile, {path.copy()}); },
                [=](InputBuilder& b) { b.set_xyz_file(path.copy()); },
                lose_atoms_to(GeometryKind::XyzFile));
}

EditOperation make_set_xyz_trajectory(ByteSource& source, const QuillInput& document) {
  // The atoms go before the path is copied, so that it must not be one of their symbols.
  const TextArgument path(source, document, Symbols::LeftOut);
  return change(
      [=](InputEditor& e) { e.set_xyz_trajectory(path.in(e.document())); },
      [=](QuillInput& m) { model::set_paths(m, GeometryKind::XyzTrajectory, {path.copy()}); },
      [=](InputBuilder& b) { b.set_xyz_trajectory(path.copy()); },
      lose_atoms_to(GeometryKind::XyzTrajectory));
}

EditOperation make_add_post_command(ByteSource& source, const QuillInput& document) {
  const ElementArgument<PostCommand> command(source, document.post_commands, made_post_command);
  return change(
      [=](InputEditor& e) { e.add_post_command(command.in(e.document().post_commands)); },
      [=](QuillInput& m) { m.post_commands.push_back(command.copy()); },
      [=](InputBuilder& b) { b.add_post_command(command.in(b.document().post_commands)); });
}

EditOperation make_add_moved_post_command(ByteSource& source, const QuillInput& /*document*/) {
  const PostCommand command = made_post_command(source);
  return change([=](InputEditor& e) { e.add_post_command(PostCommand(command)); },
                [=](QuillInput& m) { m.post_commands.push_back(command); },
                [=](InputBuilder& b) { b.add_post_command(PostCommand(command)); });
}

EditOperation make_add_constraint(ByteSource& source, const QuillInput& /*document*/) {
  const std::size_t kind = source.below(4);
  const int i = source.integer();
  const int j = source.integer();
  const int k = source.integer();
  const int l = source.integer();
  if (kind == 0)
    return constraint(PostCommandKind::AtomConstraint, {i},
                      [=](auto& target) { target.add_atom_constraint(i); });
  if (kind == 1)
    return constraint(PostCommandKind::BondConstraint, {i, j},
                      [=](auto& target) { target.add_bond_constraint(i, j); });
  if (kind == 2)
    return constraint(PostCommandKind::AngleConstraint, {i, j, k},
                      [=](auto& target) { target.add_angle_constraint(i, j, k); });
  return constraint(PostCommandKind::DihedralConstraint, {i, j, k, l},
                    [=](auto& target) { target.add_dihedral_constraint(i, j, k, l); });
}

EditOperation make_add_scan(ByteSource& source, const QuillInput& document) {
  const AtomNumbersArgument atoms(source, document);
  const double value = source.number();
  const int steps = source.integer();
  return change([=](InputEditor& e) { e.add_scan(atoms.in(e.document()), value, steps); },
                [=](QuillInput& m) {
                  const PostCommand scan(PostCommandKind::Scan, atoms.copy(), value, steps);
                  m.post_commands.push_back(scan);
                },
                [=](InputBuilder& b) { b.add_scan(atoms.in(b.document()), value, steps); });
}

EditOperation make_set_post_file(ByteSource& source, const QuillInput& document) {
  const TextArgument path(source, document);
  return change([=](InputEditor& e) { e.set_post_file(path.in(e.document())); },
                [=](QuillInput& m) {
                  PostCommand command(PostCommandKind::PostFile);
                  command.post_file = path.copy();
                  m.post_commands.push_back(command);
                },
                [=](InputBuilder& b) { b.set_post_file(path.copy()); });
}

EditOperation make_clear_post_commands(ByteSource& /*source*/, const QuillInput& /*document*/) {
  return change([](InputEditor& e) { e.clear_post_commands(); },
                [](QuillInput& m) { m.post_commands.clear(); });
}

}  // namespace kelp::input::quill
