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

constexpr Range obeyed[] = {
    {0x00, 0x1F},      // control characters of ASCII
    {0x7F, 0x9F},      // DEL, and the control characters of Unicode, CSI among them
    {0x061C, 0x061C},  // the marks, embeddings, overrides and isolates of text direction
    {0x200E, 0x200F}, {0x2028, 0x202E}, {0x2066, 0x2069},
};

bool is_obeyed(char32_t code_point) {
  const auto covers = [&](const Range& range) {
    return range.first <= code_point && code_point <= range.last;
  };
  return std::any_of(std::begin(obeyed), std::end(obeyed), covers);
}

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
  const bool is_ascii = code_point < 0x80;
  out += is_ascii ? "\\x" : "\\u";
  append_hexadecimal(out, code_point, is_ascii ? 2 : 4);
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
  if (is_obeyed(character->code_point)) {
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
