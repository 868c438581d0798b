#ifndef KELP_INPUT_QUILL_TESTS_PROPERTIES_WRITING_HPP
#define KELP_INPUT_QUILL_TESTS_PROPERTIES_WRITING_HPP

#include "kelp/input/quill/quill.hpp"

// What holds for any document and the text that is written of it. Every check throws a Violation.

namespace kelp::input::quill {

/// The text is a function of the document: copies, editor and builder give the same bytes, the text
/// of the whole is made of the texts of its pieces, and what the kinds do not call for leaves no
/// trace.
void check_writing(const QuillInput& document);

/// The text is that of the writer written for nothing but to be seen to be right.
void check_against_obvious_writer(const QuillInput& document);

/// What is written can be read. Unless one of the exceptions of expressible.hpp applies, it reads
/// back as what was written and is written again as the same bytes.
void check_round_trip(const QuillInput& document);

}  // namespace kelp::input::quill

#endif  // KELP_INPUT_QUILL_TESTS_PROPERTIES_WRITING_HPP
