#ifndef KELP_INPUT_QUILL_PYTHON_BINDINGS_HPP
#define KELP_INPUT_QUILL_PYTHON_BINDINGS_HPP

#include <pybind11/pybind11.h>

// What each file adds to the module `_core`. Names, defaults, keywords and documentation are those
// of the Python package above it, which is the only one to call it.

namespace kelp::input::quill::python {

void bind_parameter(pybind11::module_& module);
void bind_command(pybind11::module_& module);
void bind_atom(pybind11::module_& module);
void bind_geometry(pybind11::module_& module);
void bind_post_line(pybind11::module_& module);
void bind_document(pybind11::module_& module);
void bind_editor(pybind11::module_& module);
void bind_builder(pybind11::module_& module);
void bind_reader(pybind11::module_& module);
void bind_lint(pybind11::module_& module);
void bind_losses(pybind11::module_& module);
void bind_text_edit(pybind11::module_& module);
void bind_files(pybind11::module_& module);
void bind_document_json(pybind11::module_& module);

}  // namespace kelp::input::quill::python

#endif  // KELP_INPUT_QUILL_PYTHON_BINDINGS_HPP
