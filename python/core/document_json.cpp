#include <string>

#include "core/arguments.hpp"
#include "core/bindings.hpp"
#include "core/handles.hpp"
#include "core/losses.hpp"
#include "quill-inp/formats/document_json.hpp"
#include "quill-inp/process/trouble.hpp"

// A document in other forms: the JSON of the tool, and the text by which documents are told apart.

namespace kelp::input::quill::python {

namespace {

Text json_of(const Document& document) {
  return {reading(document.tree, [](const QuillInput& input) {
    std::string text;
    tool::write_document_json(input, [&](std::string_view piece) { text += piece; });
    return text;
  })};
}

std::shared_ptr<Document> document_from(const Source& source) {
  try {
    const py::gil_scoped_release release;
    return new_document(tool::document_from_json(source.text));
  } catch (const tool::Trouble& trouble) {
    const py::object message = to_python(trouble.what());
    PyErr_SetObject(PyExc_ValueError, message.ptr());
    throw py::error_already_set();
  }
}

Text proved_text(const Document& document, Real max_change, bool allow_loss) {
  return {reading(document.tree, [&](const QuillInput& input) {
    return proved_text_of(input, {max_change.value, allow_loss});
  })};
}

}  // namespace

void bind_document_json(py::module_& module) {
  module.def("json_of", &json_of);
  module.def("document_from_json", &document_from);
  module.def("proved_text", &proved_text);
}

}  // namespace kelp::input::quill::python
