#include <memory>

#include "core/arguments.hpp"
#include "core/bindings.hpp"
#include "core/equality.hpp"
#include "core/handles.hpp"
#include "core/sealed_class.hpp"
#include "kelp/input/quill/writer.hpp"

namespace kelp::input::quill::python {

namespace {

std::shared_ptr<Parameter> new_parameter(Text name, std::optional<Text> value) {
  return std::make_shared<Parameter>(
      CommandParameter(std::move(name.bytes), plain(std::move(value))));
}

/// Returns the parameter as the writer writes it between the parentheses of a command.
Text text_of(const Parameter& parameter) {
  const HeaderCommand command("", HeaderCommandKind::ParameterList, std::nullopt,
                              {parameter.part()});
  const std::string line = to_string(command);
  return {line.substr(2, line.size() - 3)};
}

}  // namespace

void bind_parameter(py::module_& module) {
  sealed_class<Parameter>(module, "Parameter")
      .def_property(
          "name", [](const Parameter& self) { return Text{self.part().name}; },
          [](const Parameter& self, Text name) {
            const Change change(*self.tree());
            self.part().name = std::move(name.bytes);
          })
      .def_property(
          "value", [](const Parameter& self) { return to_text(self.part().value); },
          [](const Parameter& self, std::optional<Text> value) {
            const Change change(*self.tree());
            self.part().value = plain(std::move(value));
          })
      .def("copy", [](const Parameter& self) { return std::make_shared<Parameter>(self.part()); })
      .def("is_same", [](const Parameter& self,
                         const Parameter& other) { return is_same(self.part(), other.part()); })
      .def("text", &text_of);
  module.def("new_parameter", &new_parameter);
}

}  // namespace kelp::input::quill::python
