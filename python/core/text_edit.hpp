#ifndef KELP_INPUT_QUILL_PYTHON_TEXT_EDIT_HPP
#define KELP_INPUT_QUILL_PYTHON_TEXT_EDIT_HPP

#include <shared_mutex>
#include <string>
#include <utility>

#include "kelp/input/quill/lossless/read_text.hpp"
#include "kelp/input/quill/lossless/tracked_document.hpp"

namespace kelp::input::quill::python {

/// A text and the document under edit that it was read as. As with a Tree, a change waits until no
/// thread makes the new text without the interpreter's lock.
struct TextEdit {
  explicit TextEdit(std::string text)
      : read(lossless::read_text(std::move(text))), document(read.result.input) {}

  lossless::ReadText read;
  lossless::TrackedDocument document;
  mutable std::shared_mutex in_use;
};

/// What a new text may lose.
struct Tolerance {
  double max_change = 1e-6;
  bool allows_loss = false;
};

/// Returns the new text, in which only those lines are changed that have to change. Throws Refused
/// if it would lose more than is tolerated.
std::string new_text_of(const TextEdit& edit, const Tolerance& tolerance);

}  // namespace kelp::input::quill::python

#endif  // KELP_INPUT_QUILL_PYTHON_TEXT_EDIT_HPP
