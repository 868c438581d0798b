#include "quill-inp/text/utf8.hpp"

namespace kelp::input::quill::tool {

namespace {

/// The characters that one number of bytes can encode. Smaller characters would be overlong forms.
struct Form {
  std::size_t length;
  unsigned lead_mask;
  unsigned lead_bits;
  char32_t least;
};

constexpr Form forms[] = {
    {1, 0x80U, 0x00U, 0x0},
    {2, 0xE0U, 0xC0U, 0x80},
    {3, 0xF0U, 0xE0U, 0x800},
    {4, 0xF8U, 0xF0U, 0x10000},
};

constexpr char32_t last_code_point = 0x10FFFF;

constexpr bool is_surrogate(char32_t code_point) {
  return 0xD800 <= code_point && code_point <= 0xDFFF;
}

unsigned byte_at(std::string_view text, std::size_t index) {
  return static_cast<unsigned char>(text[index]);
}

const Form* find_form(unsigned lead) {
  for (const Form& form : forms) {
    if ((lead & form.lead_mask) == form.lead_bits) return &form;
  }
  return nullptr;
}

}  // namespace

std::optional<Character> first_character(std::string_view text) {
  const unsigned lead = byte_at(text, 0);
  const Form* form = find_form(lead);
  if (form == nullptr || text.size() < form->length) return std::nullopt;
  char32_t code_point = lead & ~form->lead_mask;
  for (std::size_t i = 1; i < form->length; ++i) {
    const unsigned byte = byte_at(text, i);
    if ((byte & 0xC0U) != 0x80U) return std::nullopt;
    code_point = (code_point << 6U) | (byte & 0x3FU);
  }
  if (code_point < form->least || code_point > last_code_point || is_surrogate(code_point))
    return std::nullopt;
  return Character{code_point, form->length};
}

bool is_utf8(std::string_view text) {
  while (!text.empty()) {
    const std::optional<Character> character = first_character(text);
    if (!character) return false;
    text.remove_prefix(character->length);
  }
  return true;
}

}  // namespace kelp::input::quill::tool
