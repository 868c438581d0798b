#ifndef KELP_INPUT_QUILL_TESTS_PROPERTIES_EVERYTHING_HPP
#define KELP_INPUT_QUILL_TESTS_PROPERTIES_EVERYTHING_HPP

#include <string_view>

#include "kelp/input/quill/quill.hpp"

namespace kelp::input::quill {

/// Everything that is true for any text: what is read, that the layout does not matter, and what is
/// written from it. Throws a Violation.
void check_text(std::string_view text);

/// Everything that is true for any document. Throws a Violation.
void check_document(const QuillInput& document);

}  // namespace kelp::input::quill

#endif  // KELP_INPUT_QUILL_TESTS_PROPERTIES_EVERYTHING_HPP
