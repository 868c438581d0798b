#ifndef KELP_INPUT_QUILL_TESTS_TOOLS_PROPERTIES_LINTING_HPP
#define KELP_INPUT_QUILL_TESTS_TOOLS_PROPERTIES_LINTING_HPP

#include <string_view>

// What holds for the findings of any text and for the text after its mends.

namespace kelp::input::quill::lint {

/// Findings are in order, have words, and lie in the text; every diagnostic of the reader has one.
/// A mend changes no line that has no finding, and a mended text has nothing left to mend. Throws a
/// Violation.
void check_linting(std::string_view text);

}  // namespace kelp::input::quill::lint

#endif  // KELP_INPUT_QUILL_TESTS_TOOLS_PROPERTIES_LINTING_HPP
