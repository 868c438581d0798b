#ifndef KELP_INPUT_QUILL_TESTS_PROPERTIES_TEXT_FUNCTIONS_HPP
#define KELP_INPUT_QUILL_TESTS_PROPERTIES_TEXT_FUNCTIONS_HPP

#include <string_view>

namespace kelp::input::quill {

/// Each text and element function gives what the obvious one gives, the doubles to the bit, and a
/// number that is refused leaves its variable alone. The functions see a copy of `bytes` in a heap
/// block of exactly that size, so that the address sanitizer sees a byte too many. Throws a
/// Violation.
void check_text_functions(std::string_view bytes);

}  // namespace kelp::input::quill

#endif  // KELP_INPUT_QUILL_TESTS_PROPERTIES_TEXT_FUNCTIONS_HPP
