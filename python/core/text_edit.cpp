#include "core/text_edit.hpp"

#include <memory>
#include <mutex>
#include <shared_mutex>

#include "core/arguments.hpp"
#include "core/bindings.hpp"
#include "core/handles.hpp"
#include "core/sealed_class.hpp"

namespace kelp::input::quill::python {

namespace {

bool remove_command(TextEdit& self, const Text& name, std::optional<Count> occurrence) {
  const std::unique_lock<std::shared_mutex> lock(self.in_use);
  return self.document.remove_command(
      name.bytes, occurrence ? std::optional<std::uint64_t>(occurrence->value) : std::nullopt);
}

Text new_text(const TextEdit& self, Real max_change, bool allow_loss) {
  const py::gil_scoped_release release;
  const std::shared_lock<std::shared_mutex> lock(self.in_use);
  return {new_text_of(self, {max_change.value, allow_loss})};
}

std::shared_ptr<TextEdit> new_text_edit(const Source& source) {
  const py::gil_scoped_release release;
  return std::make_shared<TextEdit>(std::string(source.text));
}

}  // namespace

void bind_text_edit(py::module_& module) {
  sealed_class<TextEdit>(module, "TextEdit")
      .def("copy_of_document",
           [](const TextEdit& self) { return new_document(QuillInput(self.document.document())); })
      .def("has_command",
           [](const TextEdit& self, const Text& name) {
             return self.document.document().has_command(name.bytes);
           })
      .def("has_task_command",
           [](const TextEdit& self) { return self.document.document().has_task_command(); })
      .def("command_names",
           [](const TextEdit& self) { return to_texts(self.document.document().command_names()); })
      .def("remove_command", &remove_command)
      .def("new_text", &new_text);
  module.def("new_text_edit", &new_text_edit);
}

}  // namespace kelp::input::quill::python
