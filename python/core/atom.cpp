#include <memory>

#include "core/arguments.hpp"
#include "core/bindings.hpp"
#include "core/handles.hpp"
#include "core/sealed_class.hpp"
#include "kelp/input/quill/lossless/equality.hpp"
#include "kelp/input/quill/writer.hpp"

namespace kelp::input::quill::python {

namespace {

std::shared_ptr<Atom> new_atom(Text symbol, Real x, Real y, Real z) {
  return std::make_shared<Atom>(AtomRecord{std::move(symbol.bytes), x.value, y.value, z.value});
}

template <double AtomRecord::*Member>
double coordinate(const Atom& self) {
  return self.part().*Member;
}

template <double AtomRecord::*Member>
void set_coordinate(const Atom& self, Real value) {
  const Change change(*self.tree());
  self.part().*Member = value.value;
}

/// Returns the line of the atom, without its line end.
Text text_of(const Atom& atom) {
  GeometryBlock geometry;
  geometry.kind = GeometryKind::Atoms;
  geometry.atoms.push_back(atom.part());
  std::string line = to_string(geometry);
  line.pop_back();
  return {std::move(line)};
}

}  // namespace

void bind_atom(py::module_& module) {
  sealed_class<Atom>(module, "Atom")
      .def_property(
          "symbol", [](const Atom& self) { return Text{self.part().symbol}; },
          [](const Atom& self, Text symbol) {
            const Change change(*self.tree());
            self.part().symbol = std::move(symbol.bytes);
          })
      .def_property("x", &coordinate<&AtomRecord::x>, &set_coordinate<&AtomRecord::x>)
      .def_property("y", &coordinate<&AtomRecord::y>, &set_coordinate<&AtomRecord::y>)
      .def_property("z", &coordinate<&AtomRecord::z>, &set_coordinate<&AtomRecord::z>)
      .def("copy", [](const Atom& self) { return std::make_shared<Atom>(self.part()); })
      .def("is_same",
           [](const Atom& self, const Atom& other) {
             return lossless::is_equal(self.part(), other.part());
           })
      .def("text", &text_of);
  module.def("new_atom", &new_atom);
}

}  // namespace kelp::input::quill::python
