#include <cstring>
#include <memory>

#include "core/arguments.hpp"
#include "core/atom_arrays.hpp"
#include "core/bindings.hpp"
#include "core/equality.hpp"
#include "core/handles.hpp"
#include "core/part_lists.hpp"
#include "core/sealed_class.hpp"
#include "kelp/input/quill/writer.hpp"

namespace kelp::input::quill::python {

namespace {

GeometryBlock& block(const Coordinates& self) { return self.tree->input.geometry; }

template <std::int32_t GeometryBlock::*Member>
std::int32_t number(const Coordinates& self) {
  return block(self).*Member;
}

template <std::int32_t GeometryBlock::*Member>
void set_number(const Coordinates& self, Whole value) {
  const Change change(*self.tree);
  block(self).*Member = value.value;
}

std::shared_ptr<Coordinates> new_geometry(Whole kind, Whole charge, Whole multiplicity,
                                          bool has_charge_and_multiplicity) {
  auto made = std::make_shared<Coordinates>();
  GeometryBlock& geometry = block(*made);
  geometry.kind = static_cast<GeometryKind>(kind.value);
  geometry.charge = charge.value;
  geometry.multiplicity = multiplicity.value;
  geometry.has_charge_and_multiplicity = has_charge_and_multiplicity;
  return made;
}

std::shared_ptr<Coordinates> copy(const Coordinates& self) {
  auto made = std::make_shared<Coordinates>();
  block(*made) = block(self);
  return made;
}

Text text_of(const Coordinates& self) {
  return {reading(self.tree, [](const QuillInput& input) { return to_string(input.geometry); })};
}

}  // namespace

void bind_geometry(py::module_& module) {
  sealed_class<Coordinates>(module, "Coordinates")
      .def_property(
          "kind", [](const Coordinates& self) { return static_cast<int>(block(self).kind); },
          [](const Coordinates& self, Whole kind) {
            const Change change(*self.tree);
            block(self).kind = static_cast<GeometryKind>(kind.value);
          })
      .def_property("charge", &number<&GeometryBlock::charge>, &set_number<&GeometryBlock::charge>)
      .def_property("multiplicity", &number<&GeometryBlock::multiplicity>,
                    &set_number<&GeometryBlock::multiplicity>)
      .def_property(
          "has_charge_and_multiplicity",
          [](const Coordinates& self) { return block(self).has_charge_and_multiplicity; },
          [](const Coordinates& self, bool has_them) {
            const Change change(*self.tree);
            block(self).has_charge_and_multiplicity = has_them;
          })
      .def("atoms", [](const Coordinates& self) { return AtomList{self.tree}; })
      .def("xyz_files", [](const Coordinates& self) { return PathList{self.tree}; })
      .def("positions", [](const Coordinates& self) { return positions_of(block(self).atoms); })
      .def("symbols", [](const Coordinates& self) { return symbols_of(block(self).atoms); })
      .def("numbers", [](const Coordinates& self) { return numbers_of(block(self).atoms); })
      .def("copy", &copy)
      .def("is_same", [](const Coordinates& self,
                         const Coordinates& other) { return is_same(block(self), block(other)); })
      .def("text", &text_of);
  bind_list<AtomList>(module, "AtomList");
  bind_list<PathList>(module, "PathList");
  module.def("new_geometry", &new_geometry);
}

}  // namespace kelp::input::quill::python
