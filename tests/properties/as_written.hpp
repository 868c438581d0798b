#ifndef KELP_INPUT_QUILL_TESTS_PROPERTIES_AS_WRITTEN_HPP
#define KELP_INPUT_QUILL_TESTS_PROPERTIES_AS_WRITTEN_HPP

#include "kelp/input/quill/quill.hpp"

namespace kelp::input::quill {

/// The part of a document that its text tells, in the form in which the reader would store it:
/// fields that no kind calls for are empty, an assignment has a value, unknown kinds of commands
/// are flags, and every post-processing line carries itself as its raw text. The text is the same.
QuillInput as_written(const QuillInput& document);

}  // namespace kelp::input::quill

#endif  // KELP_INPUT_QUILL_TESTS_PROPERTIES_AS_WRITTEN_HPP
