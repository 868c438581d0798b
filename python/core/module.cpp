#include "core/bindings.hpp"

PYBIND11_MODULE(_core, module) {
  using namespace kelp::input::quill::python;

  module.doc() = "What the Python package quill_inp is made of; use that.";
  module.attr("version") = KELP_QUILL_INP_VERSION;
  bind_parameter(module);
  bind_command(module);
  bind_atom(module);
  bind_geometry(module);
  bind_post_line(module);
  bind_document(module);
  bind_editor(module);
  bind_builder(module);
  bind_reader(module);
  bind_lint(module);
  bind_losses(module);
  bind_text_edit(module);
  bind_files(module);
  bind_document_json(module);
}
