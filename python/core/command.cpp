#include <memory>

#include "core/arguments.hpp"
#include "core/bindings.hpp"
#include "core/handles.hpp"
#include "core/part_lists.hpp"
#include "core/sealed_class.hpp"
#include "kelp/input/quill/lossless/equality.hpp"
#include "kelp/input/quill/writer.hpp"

namespace kelp::input::quill::python {

namespace {

std::shared_ptr<Command> new_command(Text name, Whole kind, std::optional<Text> value) {
  return std::make_shared<Command>(HeaderCommand(
      std::move(name.bytes), static_cast<HeaderCommandKind>(kind.value), plain(std::move(value))));
}

}  // namespace

void bind_command(py::module_& module) {
  sealed_class<Command>(module, "Command")
      .def_property(
          "name", [](const Command& self) { return Text{self.part().name}; },
          [](const Command& self, Text name) {
            const Change change(*self.tree());
            self.part().name = std::move(name.bytes);
          })
      .def_property(
          "kind", [](const Command& self) { return static_cast<int>(self.part().kind); },
          [](const Command& self, Whole kind) {
            const Change change(*self.tree());
            self.part().kind = static_cast<HeaderCommandKind>(kind.value);
          })
      .def_property(
          "value", [](const Command& self) { return to_text(self.part().value); },
          [](const Command& self, std::optional<Text> value) {
            const Change change(*self.tree());
            self.part().value = plain(std::move(value));
          })
      .def("parameters", [](const std::shared_ptr<Command>& self) { return ParameterList{self}; })
      .def("find_parameter_index",
           [](const Command& self, const Text& name) {
             return find_parameter_index(self.part(), name.bytes);
           })
      .def("copy", [](const Command& self) { return std::make_shared<Command>(self.part()); })
      .def("is_same",
           [](const Command& self, const Command& other) {
             return lossless::is_equal(self.part(), other.part());
           })
      .def("text", [](const Command& self) { return Text{to_string(self.part())}; });
  bind_list<ParameterList>(module, "ParameterList");
  module.def("new_command", &new_command);
}

}  // namespace kelp::input::quill::python
