#ifndef KELP_INPUT_QUILL_TESTS_PROPERTIES_WRITING_HPP
#define KELP_INPUT_QUILL_TESTS_PROPERTIES_WRITING_HPP

#include <string_view>

#include "kelp/input/quill/quill.hpp"
#include "properties/reading.hpp"

// What is true for any document and the text that was written from it. Every check throws a
// Violation.

namespace kelp::input::quill {

/// The text is a function of the document: copies, editor and builder give the same bytes, the text
/// of the whole is made of the texts of its pieces, and what the kinds do not call for leaves no
/// trace.
void check_writing(const QuillInput& document, std::string_view text);

/// The text is that of the writer in obvious_writer.hpp.
void check_against_obvious_writer(const QuillInput& document, std::string_view text);

/// What is written can be read. Unless one of the exceptions of expressible.hpp applies, it reads
/// back as what was written and is written again as the same bytes.
void check_round_trip(const QuillInput& document, Reader* read = parse_string);

}  // namespace kelp::input::quill

#endif  // KELP_INPUT_QUILL_TESTS_PROPERTIES_WRITING_HPP
