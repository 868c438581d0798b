#include "quill-inp/text/terminal_text.hpp"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <optional>

#include "quill-inp/text/hexadecimal.hpp"
#include "quill-inp/text/utf8.hpp"

namespace kelp::input::quill::tool {

namespace {

struct Range {
  char32_t first;
  char32_t last;
};

/// What controls a terminal, what cannot be seen, and what looks like a blank but is not one for
/// the reader.
constexpr Range not_shown[] = {
    {0x00, 0x1F},        // control characters of ASCII
    {0x7F, 0xA0},        // DEL, the control characters of Unicode, CSI among them, a blank
    {0xAD, 0xAD},        // soft hyphen
    {0x034F, 0x034F},    // combining grapheme joiner
    {0x061C, 0x061C},    // a mark of text direction
    {0x115F, 0x1160},    // Hangul fillers
    {0x1680, 0x1680},    // a blank
    {0x17B4, 0x17B5},    // Khmer vowels without a form
    {0x180B, 0x180F},    // Mongolian variation selectors
    {0x2000, 0x200F},    // blanks, blanks without width, joiners, marks of text direction
    {0x2028, 0x202F},    // line ends, embeddings and overrides of text direction, a blank
    {0x205F, 0x206F},    // a blank, invisible operators, isolates of text direction
    {0x2800, 0x2800},    // the Braille pattern without dots
    {0x3000, 0x3000},    // a blank
    {0x3164, 0x3164},    // a Hangul filler
    {0xFE00, 0xFE0F},    // variation selectors
    {0xFEFF, 0xFEFF},    // byte order mark
    {0xFFA0, 0xFFA0},    // a Hangul filler
    {0xFFF0, 0xFFFB},    // annotations
    {0x1BCA0, 0x1BCA3},  // controls of shorthand
    {0x1D173, 0x1D17A},  // controls of musical notes
    {0xE0000, 0xE0FFF},  // tags, variation selectors
};

bool has_escape(char32_t code_point) {
  const auto covers = [&](const Range& range) {
    return range.first <= code_point && code_point <= range.last;
  };
  return std::any_of(std::begin(not_shown), std::end(not_shown), covers);
}

void append_utf16_escape(std::string& out, char32_t unit) {
  out += "\\u";
  append_hexadecimal(out, unit, 4);
}

constexpr char32_t first_astral = 0x10000;

void append_escape(std::string& out, char32_t code_point) {
  switch (code_point) {
    case '\n':
      out += "\\n";
      return;
    case '\r':
      out += "\\r";
      return;
    case '\t':
      out += "\\t";
      return;
    default:
      break;
  }
  // JSON is shown on a terminal, too, and should still be JSON. Its writer escapes what comes
  // before the blank. Everything else gets the escapes that JSON has, including surrogate pairs.
  if (code_point < ' ') {
    out += "\\x";
    append_hexadecimal(out, code_point, 2);
  } else if (code_point < first_astral) {
    append_utf16_escape(out, code_point);
  } else {
    append_utf16_escape(out, 0xD800 + ((code_point - first_astral) >> 10U));
    append_utf16_escape(out, 0xDC00 + ((code_point - first_astral) & 0x3FFU));
  }
}

/// Appends the first character of `text`, or the escape of its first byte, and returns how many
/// bytes of `text` it took.
std::size_t append_shown(std::string& out, std::string_view text) {
  const std::optional<Character> character = first_character(text);
  if (!character) {
    out += "\\x";
    append_hexadecimal(out, static_cast<unsigned char>(text.front()), 2);
    return 1;
  }
  if (has_escape(character->code_point)) {
    append_escape(out, character->code_point);
  } else {
    out += text.substr(0, character->length);
  }
  return character->length;
}

/// Returns how many bytes at the beginning of `text` are a line end or a tab.
std::size_t layout_length(std::string_view text) {
  if (text.front() == '\n' || text.front() == '\t') return 1;
  return text.substr(0, 2) == "\r\n" ? 2 : 0;
}

}  // namespace

std::string shown_on_one_line(std::string_view text) {
  std::string out;
  out.reserve(text.size());  // most texts are shown as they are
  while (!text.empty()) text.remove_prefix(append_shown(out, text));
  return out;
}

std::string shown_as_lines(std::string_view text) {
  std::string out;
  while (!text.empty()) {
    const std::size_t layout = layout_length(text);
    out += text.substr(0, layout);
    text.remove_prefix(layout);
    if (layout == 0) text.remove_prefix(append_shown(out, text));
  }
  return out;
}

}  // namespace kelp::input::quill::tool
