#ifndef KELP_INPUT_QUILL_LINT_ODD_CHARACTERS_HPP
#define KELP_INPUT_QUILL_LINT_ODD_CHARACTERS_HPP

#include <cstddef>
#include <optional>
#include <string_view>
#include <vector>

namespace kelp::input::quill::lint {

/// Characters outside ASCII that look like a character with a meaning in an input, or cannot be
/// seen.
enum class OddKind {
  Blank,      // the no-break space and similar ones, which the reader takes for letters
  Invisible,  // without a width, including byte order marks and marks of direction
  Minus,      // the minus sign, and dashes that word processors write instead
  Quote,      // typographic double and single quotes
};

struct OddCharacter {
  OddKind kind = OddKind::Blank;
  std::size_t offset = 0;  // in the text that was searched
  std::size_t length = 0;
  char32_t code_point = 0;

  std::size_t end() const { return offset + length; }
};

/// Returns the first of these characters at or after a place, or nothing. Bytes that are not UTF-8
/// are skipped.
std::optional<OddCharacter> next_odd_character(std::string_view text, std::size_t at);

/// Returns these characters of a text, in their order.
std::vector<OddCharacter> find_odd_characters(std::string_view text);

}  // namespace kelp::input::quill::lint

#endif  // KELP_INPUT_QUILL_LINT_ODD_CHARACTERS_HPP
