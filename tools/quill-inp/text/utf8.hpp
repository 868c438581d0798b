#ifndef KELP_INPUT_QUILL_TOOL_TEXT_UTF8_HPP
#define KELP_INPUT_QUILL_TOOL_TEXT_UTF8_HPP

#include <cstddef>
#include <optional>
#include <string_view>

namespace kelp::input::quill::tool {

/// One character of a text and the bytes it takes.
struct Character {
  char32_t code_point = 0;
  std::size_t length = 1;
};

/// Returns the character that `text` begins with, or nothing when its first bytes are not one:
/// neither overlong forms nor halves of surrogate pairs nor numbers above U+10FFFF count. `text` is
/// not empty.
std::optional<Character> first_character(std::string_view text);

/// Returns whether the whole text is well-formed UTF-8. The empty text is.
bool is_utf8(std::string_view text);

}  // namespace kelp::input::quill::tool

#endif  // KELP_INPUT_QUILL_TOOL_TEXT_UTF8_HPP
