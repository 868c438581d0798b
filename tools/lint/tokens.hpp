#ifndef KELP_INPUT_QUILL_LINT_TOKENS_HPP
#define KELP_INPUT_QUILL_LINT_TOKENS_HPP

#include <string_view>
#include <vector>

namespace kelp::input::quill::lint {

/// Returns the words of a line as views of it, split as the reader splits them.
std::vector<std::string_view> tokens_of(std::string_view line);

/// Returns whether the reader takes a word for an integer, and for a number.
bool is_integer(std::string_view token);
bool is_number(std::string_view token);

/// Returns whether a word was meant as a number: it begins with a digit, which may come after a
/// sign and a point or comma. A minus sign may be one of those that are not the ASCII one.
bool resembles_number(std::string_view token);

/// Returns whether a word is made of letters and is the symbol of an element in any letter case.
bool is_element(std::string_view token);

}  // namespace kelp::input::quill::lint

#endif  // KELP_INPUT_QUILL_LINT_TOKENS_HPP
