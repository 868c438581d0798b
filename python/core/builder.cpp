#include <memory>
#include <string>
#include <vector>

#include "core/arguments.hpp"
#include "core/atom_arrays.hpp"
#include "core/bindings.hpp"
#include "core/handles.hpp"
#include "core/part_lists.hpp"
#include "core/sealed_class.hpp"
#include "kelp/input/quill/builder.hpp"

namespace kelp::input::quill::python {

namespace {

using BuilderClass = py::class_<InputBuilder, std::shared_ptr<InputBuilder>>;

template <typename List>
auto parts_from(const py::list& objects) {
  std::vector<decltype(List::part_of(py::handle()))> parts;
  parts.reserve(objects.size());
  for (const py::handle object : objects) parts.push_back(List::part_of(object));
  return parts;
}

void bind_header_operations(BuilderClass& builder) {
  builder
      .def("set_task",
           [](InputBuilder& self, Text name, const py::list& parameters) {
             self.set_task(std::move(name.bytes), parts_from<ParameterList>(parameters));
           })
      .def("set_task_parameter",
           [](InputBuilder& self, Text command, Text key, Text value) {
             self.set_task_parameter(std::move(command.bytes), std::move(key.bytes),
                                     std::move(value.bytes));
           })
      .def("set_model",
           [](InputBuilder& self, Text value) { self.set_model(std::move(value.bytes)); })
      .def("set_device",
           [](InputBuilder& self, Text value) { self.set_device(std::move(value.bytes)); })
      .def("set_assignment",
           [](InputBuilder& self, Text name, Text value) {
             self.set_assignment(std::move(name.bytes), std::move(value.bytes));
           })
      .def("set_flag", [](InputBuilder& self, Text name) { self.set_flag(std::move(name.bytes)); })
      .def("add_command",
           [](InputBuilder& self, const Command& command) { self.add_command(command.part()); });
}

void bind_geometry_operations(BuilderClass& builder) {
  builder
      .def("set_charge_and_multiplicity",
           [](InputBuilder& self, Whole charge, Whole multiplicity) {
             self.set_charge_and_multiplicity(charge.value, multiplicity.value);
           })
      .def("clear_charge_and_multiplicity",
           [](InputBuilder& self) { self.clear_charge_and_multiplicity(); })
      .def("add_atom", [](InputBuilder& self, const Atom& atom) { self.add_atom(atom.part()); })
      .def("set_atoms",
           [](InputBuilder& self, const py::list& atoms) {
             self.set_geometry(parts_from<AtomList>(atoms));
           })
      .def("set_positions",
           [](InputBuilder& self, std::vector<Text> symbols, const py::buffer& positions) {
             self.set_geometry(atoms_from(std::move(symbols), positions));
           })
      .def("set_xyz_files",
           [](InputBuilder& self, std::vector<Text> files) {
             self.set_xyz_files(plain(std::move(files)));
           })
      .def("set_xyz_file",
           [](InputBuilder& self, Text path) { self.set_xyz_file(std::move(path.bytes)); })
      .def("set_xyz_trajectory",
           [](InputBuilder& self, Text path) { self.set_xyz_trajectory(std::move(path.bytes)); });
}

void bind_post_operations(BuilderClass& builder) {
  builder
      .def("add_post_command",
           [](InputBuilder& self, const PostLine& line) { self.add_post_command(line.part()); })
      .def("add_atom_constraint",
           [](InputBuilder& self, Whole a) { self.add_atom_constraint(a.value); })
      .def("add_bond_constraint",
           [](InputBuilder& self, Whole a, Whole b) { self.add_bond_constraint(a.value, b.value); })
      .def("add_angle_constraint",
           [](InputBuilder& self, Whole a, Whole b, Whole c) {
             self.add_angle_constraint(a.value, b.value, c.value);
           })
      .def("add_dihedral_constraint",
           [](InputBuilder& self, Whole a, Whole b, Whole c, Whole d) {
             self.add_dihedral_constraint(a.value, b.value, c.value, d.value);
           })
      .def("add_scan", [](InputBuilder& self, const std::vector<Whole>& atoms, Real value,
                          Whole steps) { self.add_scan(plain(atoms), value.value, steps.value); })
      .def("set_post_file",
           [](InputBuilder& self, Text path) { self.set_post_file(std::move(path.bytes)); });
}

}  // namespace

void bind_builder(py::module_& module) {
  BuilderClass builder = sealed_class<InputBuilder>(module, "Builder");
  builder.def("document",
              [](const InputBuilder& self) { return new_document(QuillInput(self.document())); });
  bind_header_operations(builder);
  bind_geometry_operations(builder);
  bind_post_operations(builder);
  module.def("new_builder", [] { return std::make_shared<InputBuilder>(); });
}

}  // namespace kelp::input::quill::python
