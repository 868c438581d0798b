#ifndef KELP_INPUT_QUILL_TESTS_TOOLS_PROPERTIES_LINTING_HPP
#define KELP_INPUT_QUILL_TESTS_TOOLS_PROPERTIES_LINTING_HPP

#include <string_view>

// What is true for the findings of any text and for the text after its mends.

namespace kelp::input::quill::lint {

/// Findings are in order, have words, and are in the text; every diagnostic of the reader has one.
/// A mend does not change lines without a finding, and in a mended text nothing is left to mend.
/// Throws a Violation.
void check_linting(std::string_view text);

}  // namespace kelp::input::quill::lint

#endif  // KELP_INPUT_QUILL_TESTS_TOOLS_PROPERTIES_LINTING_HPP
