#include <algorithm>
#include <memory>
#include <stdexcept>

#include "core/arguments.hpp"
#include "core/bindings.hpp"
#include "core/equality.hpp"
#include "core/handles.hpp"
#include "core/part_lists.hpp"
#include "core/sealed_class.hpp"

namespace kelp::input::quill::python {

namespace {

/// Returns the object for a command that the library found.
std::shared_ptr<Command> show(const Document& self, const HeaderCommand& command) {
  const HeaderCommand* first = self.tree->input.commands.data();
  return std::make_shared<Command>(self.tree, Place{static_cast<std::size_t>(&command - first), 0});
}

std::shared_ptr<Command> find_command(const Document& self, const Text& name, Count occurrence) {
  const HeaderCommand* command = self.tree->input.find_command(name.bytes, occurrence.value);
  return command == nullptr ? nullptr : show(self, *command);
}

std::shared_ptr<Command> upsert_command(const Document& self, Text name) {
  const Change change(*self.tree);
  return show(self, self.tree->input.upsert_command(std::move(name.bytes)));
}

bool remove_command(const Document& self, const Text& name, std::optional<Count> occurrence) {
  const Change change(*self.tree);
  let_commands_stand_alone(*self.tree);
  return self.tree->input.remove_command(
      name.bytes, occurrence ? std::optional<std::uint64_t>(occurrence->value) : std::nullopt);
}

void set_geometry(const Document& self, const Coordinates& geometry) {
  if (self.tree == geometry.tree) return;
  GeometryBlock copy = geometry.tree->input.geometry;
  const Change change(*self.tree);
  let_stand_alone<AtomRecord>(*self.tree);
  self.tree->input.geometry = std::move(copy);
}

std::shared_ptr<Document> copy(const Document& self) {
  return new_document(
      reading(self.tree, [](const QuillInput& input) { return QuillInput(input); }));
}

/// The other document, which another thread could change, is compared with the interpreter locked.
bool is_same_document(const Document& self, const Document& other) {
  return is_same(self.tree->input, other.tree->input);
}

void write_file(const Document& self, const std::string& path) {
  const bool was_opened = reading(self.tree, [&](const QuillInput& input) {
    try {
      input.write_file(path);
      return true;
    } catch (const std::runtime_error&) {
      return false;
    }
  });
  if (was_opened) return;
  const py::object message = to_python("Failed to open QUILL input for writing: " + path);
  PyErr_SetObject(PyExc_OSError, message.ptr());
  throw py::error_already_set();
}

}  // namespace

void bind_document(py::module_& module) {
  sealed_class<Document>(module, "Document")
      .def("commands",
           [](const Document& self) {
             CommandList list;
             list.tree = self.tree;
             return list;
           })
      .def("geometry", [](const Document& self) { return Coordinates{self.tree}; })
      .def("set_geometry", &set_geometry)
      .def("post_commands", [](const Document& self) { return PostLineList{self.tree}; })
      .def("find_command", &find_command)
      .def("has_command", [](const Document& self,
                             const Text& name) { return self.tree->input.has_command(name.bytes); })
      .def("has_task_command",
           [](const Document& self) { return self.tree->input.has_task_command(); })
      .def("command_names",
           [](const Document& self) { return to_texts(self.tree->input.command_names()); })
      .def("upsert_command", &upsert_command)
      .def("remove_command", &remove_command)
      .def("copy", &copy)
      .def("is_same", &is_same_document)
      .def("write_file", &write_file)
      .def("text", [](const Document& self) {
        return Text{reading(self.tree, [](const QuillInput& input) { return input.to_string(); })};
      });
  bind_list<CommandList>(module, "CommandList");
  bind_list<PostLineList>(module, "PostLineList");
  module.def("new_document", [] { return std::make_shared<Document>(); });
  module.def("normalize_command_name",
             [](const Text& name) { return Text{normalize_command_name(name.bytes)}; });
}

}  // namespace kelp::input::quill::python
