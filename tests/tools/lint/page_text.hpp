#ifndef KELP_INPUT_QUILL_TESTS_TOOLS_LINT_PAGE_TEXT_HPP
#define KELP_INPUT_QUILL_TESTS_TOOLS_LINT_PAGE_TEXT_HPP

#include <string>
#include <string_view>
#include <vector>

#include "lint/source.hpp"

namespace kelp::input::quill::lint {

/// Returns the headings of a page of a rule, with their number signs.
std::vector<std::string> headings_of(std::string_view page);

/// Returns the input in the code block below a heading, with what escapes in it stand for. Empty
/// if there is none.
std::string input_below(std::string_view page, std::string_view heading);

/// The options of the pages: they refer to files that the tests make up.
Options options_of_pages();

}  // namespace kelp::input::quill::lint

#endif  // KELP_INPUT_QUILL_TESTS_TOOLS_LINT_PAGE_TEXT_HPP
