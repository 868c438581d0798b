#ifndef KELP_INPUT_QUILL_TESTS_TOOLS_LINT_ESCAPES_HPP
#define KELP_INPUT_QUILL_TESTS_TOOLS_LINT_ESCAPES_HPP

#include <string>

namespace kelp::input::quill::lint {

/// Returns the bytes that a block marked as "escaped" on a page stands for: `\r` is a carriage
/// return, `\x` and two digits a byte, `\u` and four digits a character in UTF-8.
std::string unescaped(const std::string& text);

}  // namespace kelp::input::quill::lint

#endif  // KELP_INPUT_QUILL_TESTS_TOOLS_LINT_ESCAPES_HPP
