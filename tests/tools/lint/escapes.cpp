#include "tools/lint/escapes.hpp"

#include <cstddef>

namespace kelp::input::quill::lint {

namespace {

/// UTF-8 of a character beyond ASCII in the basic plane.
std::string utf8(unsigned code_point) {
  std::string bytes;
  if (code_point >= 0x800) {
    bytes += static_cast<char>(0xE0U | code_point >> 12U);
    bytes += static_cast<char>(0x80U | (code_point >> 6U & 0x3FU));
  } else {
    bytes += static_cast<char>(0xC0U | code_point >> 6U);
  }
  bytes += static_cast<char>(0x80U | (code_point & 0x3FU));
  return bytes;
}

unsigned hexadecimal(const std::string& digits) {
  return static_cast<unsigned>(std::stoul(digits, nullptr, 16));
}

}  // namespace

std::string unescaped(const std::string& text) {
  std::string bytes;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] != '\\') {
      bytes += text[i];
    } else if (text[++i] == 'r') {
      bytes += '\r';
    } else if (text[i] == 'x') {
      bytes += static_cast<char>(hexadecimal(text.substr(i + 1, 2)));
      i += 2;
    } else {
      bytes += utf8(hexadecimal(text.substr(i + 1, 4)));
      i += 4;
    }
  }
  return bytes;
}

}  // namespace kelp::input::quill::lint
