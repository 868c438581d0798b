#ifndef KELP_INPUT_QUILL_PYTHON_LOSSES_HPP
#define KELP_INPUT_QUILL_PYTHON_LOSSES_HPP

#include <string>

#include "core/text_edit.hpp"
#include "kelp/input/quill/document.hpp"

namespace kelp::input::quill::python {

/// Returns the canonical text of a document, with quotes around values that need them. Throws
/// Refused if it does not read back as the document; coordinates have six decimals.
std::string proved_text_of(const QuillInput& document, const Tolerance& tolerance);

}  // namespace kelp::input::quill::python

#endif  // KELP_INPUT_QUILL_PYTHON_LOSSES_HPP
