#ifndef KELP_INPUT_QUILL_EDIT_SUPPORT_PART_WORDS_HPP
#define KELP_INPUT_QUILL_EDIT_SUPPORT_PART_WORDS_HPP

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "kelp/input/quill/document.hpp"

// The words for the parts of a document and their values, as messages use them.

namespace kelp::input::quill::edit_support {

/// Returns the text between apostrophes, its bytes as they are.
std::string quoted(std::string_view text);

/// Returns the noun with "a" or "an" in front, and "raw text" without.
std::string with_article(std::string_view noun);

/// Return a value in words that fit after "is": 'text', 12, 0.1, 1 2 3, or "absent".
std::string words(const std::string& text);
std::string words(double number);
std::string words(std::int32_t number);
std::string words(std::size_t number);
std::string words(const std::vector<std::int32_t>& numbers);
std::string words(HeaderCommandKind kind);
std::string words(GeometryKind kind);
std::string words(PostCommandKind kind);

template <typename T>
std::string words(const std::optional<T>& value) {
  return value ? words(*value) : "absent";
}

}  // namespace kelp::input::quill::edit_support

#endif  // KELP_INPUT_QUILL_EDIT_SUPPORT_PART_WORDS_HPP
