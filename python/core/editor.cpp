#include <optional>
#include <string>
#include <vector>

#include "core/arguments.hpp"
#include "core/atom_arrays.hpp"
#include "core/bindings.hpp"
#include "core/editing.hpp"
#include "core/handles.hpp"
#include "core/part_lists.hpp"

// The operations of InputEditor, as functions of a document and of a text under edit.

namespace kelp::input::quill::python {

namespace {

std::vector<CommandParameter> parameters_from(const py::list& objects) {
  std::vector<CommandParameter> parameters;
  for (const py::handle object : objects) parameters.push_back(ParameterList::part_of(object));
  return parameters;
}

std::vector<AtomRecord> atoms_from_list(const py::list& objects) {
  std::vector<AtomRecord> atoms;
  for (const py::handle object : objects) atoms.push_back(AtomList::part_of(object));
  return atoms;
}

template <typename Target>
void bind_questions(py::module_& module) {
  module.def("get_assignment", [](Target& target, const Text& name) {
    return to_text(edit(target, Touches::Nothing,
                        [&](auto& editor) { return editor.get_assignment(name.bytes); }));
  });
  module.def("get_parameter", [](Target& target, const Text& command_name,
                                 const Text& parameter_name, Count occurrence) {
    return to_text(edit(target, Touches::Nothing, [&](auto& editor) {
      return editor.get_parameter(command_name.bytes, parameter_name.bytes, occurrence.value);
    }));
  });
}

template <typename Target>
void bind_header_operations(py::module_& module) {
  module.def("set_flag", [](Target& target, const Text& name) {
    edit(target, Touches::Parameters, [&](auto& editor) { editor.set_flag(name.bytes); });
  });
  module.def("set_assignment", [](Target& target, const Text& name, const Text& value) {
    edit(target, Touches::Parameters,
         [&](auto& editor) { editor.set_assignment(name.bytes, value.bytes); });
  });
  module.def("set_model", [](Target& target, const Text& value) {
    edit(target, Touches::Parameters, [&](auto& editor) { editor.set_model(value.bytes); });
  });
  module.def("set_device", [](Target& target, const Text& value) {
    edit(target, Touches::Parameters, [&](auto& editor) { editor.set_device(value.bytes); });
  });
  module.def("set_task", [](Target& target, const Text& name, const py::list& objects) {
    std::vector<CommandParameter> parameters = parameters_from(objects);
    edit(target, Touches::Parameters,
         [&](auto& editor) { editor.set_task(name.bytes, std::move(parameters)); });
  });
  module.def("set_parameter", [](Target& target, const Text& command_name,
                                 const Text& parameter_name, const Text& value, Count occurrence) {
    edit(target, Touches::Nothing, [&](auto& editor) {
      editor.set_parameter(command_name.bytes, parameter_name.bytes, value.bytes, occurrence.value);
    });
  });
  module.def("remove_parameter", [](Target& target, const Text& command_name,
                                    const Text& parameter_name, Count occurrence) {
    return edit(target, Touches::Parameters, [&](auto& editor) {
      return editor.remove_parameter(command_name.bytes, parameter_name.bytes, occurrence.value);
    });
  });
  module.def("add_command", [](Target& target, const Command& command) {
    HeaderCommand copy = command.part();
    edit(target, Touches::Nothing, [&](auto& editor) { editor.add_command(std::move(copy)); });
  });
}

template <typename Target>
void bind_geometry_operations(py::module_& module) {
  module.def("set_charge_and_multiplicity", [](Target& target, Whole charge, Whole multiplicity) {
    edit(target, Touches::Nothing, [&](auto& editor) {
      editor.set_charge_and_multiplicity(charge.value, multiplicity.value);
    });
  });
  module.def("clear_charge_and_multiplicity", [](Target& target) {
    edit(target, Touches::Nothing, [](auto& editor) { editor.clear_charge_and_multiplicity(); });
  });
  module.def("set_atoms", [](Target& target, const py::list& objects) {
    const std::vector<AtomRecord> atoms = atoms_from_list(objects);
    edit(target, Touches::Atoms, [&](auto& editor) { editor.set_geometry(atoms); });
  });
  module.def("set_positions",
             [](Target& target, std::vector<Text> symbols, const py::buffer& positions) {
               const std::vector<AtomRecord> atoms = atoms_from(std::move(symbols), positions);
               edit(target, Touches::Atoms, [&](auto& editor) { editor.set_geometry(atoms); });
             });
  module.def("set_xyz_files", [](Target& target, std::vector<Text> files) {
    const std::vector<std::string> paths = plain(std::move(files));
    edit(target, Touches::Atoms, [&](auto& editor) { editor.set_xyz_files(paths); });
  });
  module.def("set_xyz_file", [](Target& target, const Text& path) {
    edit(target, Touches::Atoms, [&](auto& editor) { editor.set_xyz_file(path.bytes); });
  });
  module.def("set_xyz_trajectory", [](Target& target, const Text& path) {
    edit(target, Touches::Atoms, [&](auto& editor) { editor.set_xyz_trajectory(path.bytes); });
  });
  module.def("add_atom", [](Target& target, const Atom& atom) {
    const AtomRecord copy = atom.part();
    edit(target, touches_of_added_atom(target), [&](auto& editor) { editor.add_atom(copy); });
  });
}

template <typename Target>
void bind_post_operations(py::module_& module) {
  module.def("add_post_command", [](Target& target, const PostLine& line) {
    PostCommand copy = line.part();
    edit(target, Touches::Nothing, [&](auto& editor) { editor.add_post_command(std::move(copy)); });
  });
  module.def("clear_post_commands", [](Target& target) {
    edit(target, Touches::PostLines, [](auto& editor) { editor.clear_post_commands(); });
  });
  module.def("add_atom_constraint", [](Target& target, Whole a) {
    edit(target, Touches::Nothing, [&](auto& editor) { editor.add_atom_constraint(a.value); });
  });
  module.def("add_bond_constraint", [](Target& target, Whole a, Whole b) {
    edit(target, Touches::Nothing,
         [&](auto& editor) { editor.add_bond_constraint(a.value, b.value); });
  });
  module.def("add_angle_constraint", [](Target& target, Whole a, Whole b, Whole c) {
    edit(target, Touches::Nothing,
         [&](auto& editor) { editor.add_angle_constraint(a.value, b.value, c.value); });
  });
  module.def("add_dihedral_constraint", [](Target& target, Whole a, Whole b, Whole c, Whole d) {
    edit(target, Touches::Nothing,
         [&](auto& editor) { editor.add_dihedral_constraint(a.value, b.value, c.value, d.value); });
  });
  module.def("add_scan",
             [](Target& target, const std::vector<Whole>& atoms, Real value, Whole steps) {
               const std::vector<int> numbers = plain(atoms);
               edit(target, Touches::Nothing,
                    [&](auto& editor) { editor.add_scan(numbers, value.value, steps.value); });
             });
  module.def("set_post_file", [](Target& target, const Text& path) {
    edit(target, Touches::Nothing, [&](auto& editor) { editor.set_post_file(path.bytes); });
  });
}

template <typename Target>
void bind_operations(py::module_& module) {
  bind_questions<Target>(module);
  bind_header_operations<Target>(module);
  bind_geometry_operations<Target>(module);
  bind_post_operations<Target>(module);
}

}  // namespace

void bind_editor(py::module_& module) {
  bind_operations<const Document>(module);
  bind_operations<TextEdit>(module);
}

}  // namespace kelp::input::quill::python
