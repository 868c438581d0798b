#ifndef KELP_INPUT_QUILL_TESTS_LOSSLESS_PROPERTIES_SURGERY_HPP
#define KELP_INPUT_QUILL_TESTS_LOSSLESS_PROPERTIES_SURGERY_HPP

#include <string>
#include <string_view>
#include <vector>

#include "lossless/properties/edits.hpp"

// What is true for any text and any edits. The expectations do not use the code under test: the
// editor gives the wanted document, cutting at "\n" gives the lines, and the equality of the tests
// decides what is equal.

namespace kelp::input::quill::lossless {

/// The document without what only the reader fills in.
QuillInput without_source_lines(QuillInput input);

/// Edits a text. The result is what the editor means and reads back, or is refused, and then there
/// is a need to; the lines that it reports differ, and no others do. Throws a Violation.
EditOutcome checked_edit(const std::string& text, const std::vector<Edit>& edits);

/// A text proves its own document, and a proof of a document holds exactly when its canonical text
/// reads back as it. Throws a Violation.
void check_proofs(std::string_view text, const QuillInput& document);

/// Uses the bytes up to a line "%%", or all of them, as a text, and the bytes after it for edits.
void check_surgery(std::string_view bytes);

}  // namespace kelp::input::quill::lossless

#endif  // KELP_INPUT_QUILL_TESTS_LOSSLESS_PROPERTIES_SURGERY_HPP
