#ifndef KELP_INPUT_QUILL_TESTS_PROPERTIES_OBVIOUS_ELEMENTS_HPP
#define KELP_INPUT_QUILL_TESTS_PROPERTIES_OBVIOUS_ELEMENTS_HPP

#include <array>
#include <optional>
#include <string>
#include <string_view>

// The functions on elements once more, written so that they are obviously right.

namespace kelp::input::quill::obvious {

/// In the order of their atomic numbers; the first one is that of element 1.
extern const std::array<std::string_view, 118> element_symbols;

std::string normal_symbol(std::string_view symbol);
std::optional<int> atomic_number(std::string_view symbol);

}  // namespace kelp::input::quill::obvious

#endif  // KELP_INPUT_QUILL_TESTS_PROPERTIES_OBVIOUS_ELEMENTS_HPP
