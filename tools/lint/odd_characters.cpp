#include "lint/odd_characters.hpp"

#include "quill-inp/text/utf8.hpp"

namespace kelp::input::quill::lint {

namespace {

struct OddRange {
  char32_t first;
  char32_t last;
  OddKind kind;
};

constexpr OddRange odd_ranges[] = {
    {0x00A0, 0x00A0, OddKind::Blank},      // no-break space
    {0x1680, 0x1680, OddKind::Blank},      // Ogham space mark
    {0x2000, 0x200A, OddKind::Blank},      // spaces of a fixed width
    {0x202F, 0x202F, OddKind::Blank},      // narrow no-break space
    {0x205F, 0x205F, OddKind::Blank},      // mathematical space
    {0x3000, 0x3000, OddKind::Blank},      // ideographic space
    {0x00AD, 0x00AD, OddKind::Invisible},  // soft hyphen
    {0x061C, 0x061C, OddKind::Invisible},  // marks of direction
    {0x200B, 0x200F, OddKind::Invisible},  // zero width spaces and joiners, marks of direction
    {0x2028, 0x202E, OddKind::Invisible},  // separators of lines and paragraphs, embeddings
    {0x2060, 0x2069, OddKind::Invisible},  // word joiner, invisible operators, isolates
    {0xFEFF, 0xFEFF, OddKind::Invisible},  // byte order mark
    {0x2010, 0x2015, OddKind::Minus},      // hyphens and dashes
    {0x2212, 0x2212, OddKind::Minus},      // minus sign
    {0xFE58, 0xFE58, OddKind::Minus},      // small dash
    {0xFE63, 0xFE63, OddKind::Minus},      // small hyphen-minus
    {0xFF0D, 0xFF0D, OddKind::Minus},      // full width hyphen-minus
    {0x00AB, 0x00AB, OddKind::Quote},      // double angles to the left
    {0x00BB, 0x00BB, OddKind::Quote},      // and to the right
    {0x2018, 0x201F, OddKind::Quote},      // single and double quotes, high and low
};

std::optional<OddKind> kind_of(char32_t code_point) {
  for (const OddRange& range : odd_ranges) {
    if (range.first <= code_point && code_point <= range.last) return range.kind;
  }
  return std::nullopt;
}

bool is_ascii(char c) { return static_cast<unsigned char>(c) < 0x80; }

}  // namespace

std::optional<OddCharacter> next_odd_character(std::string_view text, std::size_t at) {
  while (at < text.size()) {
    if (is_ascii(text[at])) {
      ++at;
      continue;
    }
    const auto character = tool::first_character(text.substr(at));
    const std::size_t length = character ? character->length : 1;
    const auto kind = character ? kind_of(character->code_point) : std::nullopt;
    if (kind) return OddCharacter{*kind, at, length, character->code_point};
    at += length;
  }
  return std::nullopt;
}

std::vector<OddCharacter> find_odd_characters(std::string_view text) {
  std::vector<OddCharacter> found;
  for (auto odd = next_odd_character(text, 0); odd; odd = next_odd_character(text, odd->end()))
    found.push_back(*odd);
  return found;
}

}  // namespace kelp::input::quill::lint
