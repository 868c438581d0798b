#include <optional>
#include <string>
#include <vector>

#include "core/arguments.hpp"
#include "core/atom_arrays.hpp"
#include "core/bindings.hpp"
#include "core/editing.hpp"
#include "core/handles.hpp"
#include "core/part_lists.hpp"

// The operations of InputEditor, as functions of a document.

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

void bind_questions(py::module_& module) {
  module.def("get_assignment", [](const Document& document, const Text& name) {
    return to_text(ask(
        document, [&](const InputEditor& editor) { return editor.get_assignment(name.bytes); }));
  });
  module.def("get_parameter", [](const Document& document, const Text& command_name,
                                 const Text& parameter_name, Count occurrence) {
    return to_text(ask(document, [&](const InputEditor& editor) {
      return editor.get_parameter(command_name.bytes, parameter_name.bytes, occurrence.value);
    }));
  });
}

void bind_header_operations(py::module_& module) {
  module.def("set_flag", [](const Document& document, const Text& name) {
    edit(document, Touches::Parameters, [&](InputEditor& editor) { editor.set_flag(name.bytes); });
  });
  module.def("set_assignment", [](const Document& document, const Text& name, const Text& value) {
    edit(document, Touches::Parameters,
         [&](InputEditor& editor) { editor.set_assignment(name.bytes, value.bytes); });
  });
  module.def("set_model", [](const Document& document, const Text& value) {
    edit(document, Touches::Parameters,
         [&](InputEditor& editor) { editor.set_model(value.bytes); });
  });
  module.def("set_device", [](const Document& document, const Text& value) {
    edit(document, Touches::Parameters,
         [&](InputEditor& editor) { editor.set_device(value.bytes); });
  });
  module.def("set_task", [](const Document& document, const Text& name, const py::list& objects) {
    std::vector<CommandParameter> parameters = parameters_from(objects);
    edit(document, Touches::Parameters,
         [&](InputEditor& editor) { editor.set_task(name.bytes, std::move(parameters)); });
  });
  module.def("set_parameter", [](const Document& document, const Text& command_name,
                                 const Text& parameter_name, const Text& value, Count occurrence) {
    edit(document, Touches::Nothing, [&](InputEditor& editor) {
      editor.set_parameter(command_name.bytes, parameter_name.bytes, value.bytes, occurrence.value);
    });
  });
  module.def("remove_parameter", [](const Document& document, const Text& command_name,
                                    const Text& parameter_name, Count occurrence) {
    return edit(document, Touches::Parameters, [&](InputEditor& editor) {
      return editor.remove_parameter(command_name.bytes, parameter_name.bytes, occurrence.value);
    });
  });
  module.def("add_command", [](const Document& document, const Command& command) {
    HeaderCommand copy = command.part();
    edit(document, Touches::Nothing,
         [&](InputEditor& editor) { editor.add_command(std::move(copy)); });
  });
}

void bind_geometry_operations(py::module_& module) {
  module.def("set_charge_and_multiplicity",
             [](const Document& document, Whole charge, Whole multiplicity) {
               edit(document, Touches::Nothing, [&](InputEditor& editor) {
                 editor.set_charge_and_multiplicity(charge.value, multiplicity.value);
               });
             });
  module.def("clear_charge_and_multiplicity", [](const Document& document) {
    edit(document, Touches::Nothing,
         [](InputEditor& editor) { editor.clear_charge_and_multiplicity(); });
  });
  module.def("set_atoms", [](const Document& document, const py::list& objects) {
    const std::vector<AtomRecord> atoms = atoms_from_list(objects);
    edit(document, Touches::Atoms, [&](InputEditor& editor) { editor.set_geometry(atoms); });
  });
  module.def("set_positions", [](const Document& document, std::vector<Text> symbols,
                                 const py::buffer& positions) {
    const std::vector<AtomRecord> atoms = atoms_from(std::move(symbols), positions);
    edit(document, Touches::Atoms, [&](InputEditor& editor) { editor.set_geometry(atoms); });
  });
  module.def("set_xyz_files", [](const Document& document, std::vector<Text> files) {
    const std::vector<std::string> paths = plain(std::move(files));
    edit(document, Touches::Atoms, [&](InputEditor& editor) { editor.set_xyz_files(paths); });
  });
  module.def("set_xyz_file", [](const Document& document, const Text& path) {
    edit(document, Touches::Atoms, [&](InputEditor& editor) { editor.set_xyz_file(path.bytes); });
  });
  module.def("set_xyz_trajectory", [](const Document& document, const Text& path) {
    edit(document, Touches::Atoms,
         [&](InputEditor& editor) { editor.set_xyz_trajectory(path.bytes); });
  });
  module.def("add_atom", [](const Document& document, const Atom& atom) {
    const AtomRecord copy = atom.part();
    const bool keeps_atoms = document.tree->input.geometry.kind == GeometryKind::Atoms;
    edit(document, keeps_atoms ? Touches::Nothing : Touches::Atoms,
         [&](InputEditor& editor) { editor.add_atom(copy); });
  });
}

void bind_post_operations(py::module_& module) {
  module.def("add_post_command", [](const Document& document, const PostLine& line) {
    PostCommand copy = line.part();
    edit(document, Touches::Nothing,
         [&](InputEditor& editor) { editor.add_post_command(std::move(copy)); });
  });
  module.def("clear_post_commands", [](const Document& document) {
    edit(document, Touches::PostLines, [](InputEditor& editor) { editor.clear_post_commands(); });
  });
  module.def("add_atom_constraint", [](const Document& document, Whole a) {
    edit(document, Touches::Nothing,
         [&](InputEditor& editor) { editor.add_atom_constraint(a.value); });
  });
  module.def("add_bond_constraint", [](const Document& document, Whole a, Whole b) {
    edit(document, Touches::Nothing,
         [&](InputEditor& editor) { editor.add_bond_constraint(a.value, b.value); });
  });
  module.def("add_angle_constraint", [](const Document& document, Whole a, Whole b, Whole c) {
    edit(document, Touches::Nothing,
         [&](InputEditor& editor) { editor.add_angle_constraint(a.value, b.value, c.value); });
  });
  module.def("add_dihedral_constraint",
             [](const Document& document, Whole a, Whole b, Whole c, Whole d) {
               edit(document, Touches::Nothing, [&](InputEditor& editor) {
                 editor.add_dihedral_constraint(a.value, b.value, c.value, d.value);
               });
             });
  module.def("add_scan", [](const Document& document, const std::vector<Whole>& atoms, Real value,
                            Whole steps) {
    const std::vector<int> numbers = plain(atoms);
    edit(document, Touches::Nothing,
         [&](InputEditor& editor) { editor.add_scan(numbers, value.value, steps.value); });
  });
  module.def("set_post_file", [](const Document& document, const Text& path) {
    edit(document, Touches::Nothing,
         [&](InputEditor& editor) { editor.set_post_file(path.bytes); });
  });
}

}  // namespace

void bind_editor(py::module_& module) {
  bind_questions(module);
  bind_header_operations(module);
  bind_geometry_operations(module);
  bind_post_operations(module);
}

}  // namespace kelp::input::quill::python
