#include "core/losses.hpp"

#include <utility>
#include <vector>

#include "core/arguments.hpp"
#include "core/bindings.hpp"
#include "core/refused.hpp"
#include "kelp/input/quill/lossless/input_doubt.hpp"
#include "kelp/input/quill/lossless/proof.hpp"
#include "kelp/input/quill/lossless/quoting.hpp"
#include "kelp/input/quill/lossless/surgical_edit.hpp"
#include "kelp/input/quill/lossless/wording.hpp"
#include "quill-inp/editing/losses.hpp"
#include "quill-inp/editing/wording.hpp"

namespace kelp::input::quill::python {

namespace {

/// Throws for the first loss, with the words of the tool.
void require_no_loss(const tool::Losses& losses) {
  if (losses.count() == 0) return;
  const tool::LossWords first = tool::words(losses, 1).front();
  throw Refused(first.text, first.line);
}

void require_input(const lossless::ReadText& read) {
  if (const auto doubt = lossless::find_input_doubt(read))
    throw Refused(lossless::words(*doubt), doubt->line);
}

void translate(std::exception_ptr thrown) {
  try {
    if (thrown) std::rethrow_exception(std::move(thrown));
  } catch (const Refused& refused) {
    const py::object kind = py::module_::import("quill_inp").attr("LossError");
    const py::object error = kind(to_python(refused.reason()), refused.line());
    PyErr_SetObject(kind.ptr(), error.ptr());
  }
}

}  // namespace

std::string new_text_of(const TextEdit& edit, const Tolerance& tolerance) {
  const QuillInput& wanted = edit.document.document();
  if (!tolerance.allows_loss) require_input(edit.read);
  lossless::SurgicalEdit made = lossless::render(edit.read, edit.document, tolerance.max_change);
  if (!tolerance.allows_loss)
    require_no_loss({{},
                     tool::list_header_losses(edit.read, made),
                     std::move(made.quoting_problems),
                     made.proof,
                     wanted});
  return std::move(made.text);
}

std::string proved_text_of(const QuillInput& document, const Tolerance& tolerance) {
  lossless::QuotedDocument quoted = lossless::quote(document);
  std::string text = quoted.document.to_string();
  if (!tolerance.allows_loss) {
    const lossless::Proof proof = lossless::prove(text, document, tolerance.max_change);
    require_no_loss({{}, {}, std::move(quoted.problems), proof, document});
  }
  return text;
}

void bind_losses(py::module_& /*module*/) { py::register_exception_translator(&translate); }

}  // namespace kelp::input::quill::python
