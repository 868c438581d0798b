#ifndef KELP_INPUT_QUILL_LINT_PAGES_HPP
#define KELP_INPUT_QUILL_LINT_PAGES_HPP

#include <string_view>

namespace kelp::input::quill::lint {

/// Returns the page of a rule, which is the file with its code in docs/lint/, or the empty text for
/// a code without a page. The text lives as long as the program.
std::string_view page_of(std::string_view code);

}  // namespace kelp::input::quill::lint

#endif  // KELP_INPUT_QUILL_LINT_PAGES_HPP
