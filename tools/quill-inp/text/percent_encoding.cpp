#include "quill-inp/text/percent_encoding.hpp"

#include <cstddef>
#include <optional>

namespace kelp::input::quill::tool {

namespace {

// Addresses are compared as texts, and their standard asks for upper case.
constexpr std::string_view digits = "0123456789ABCDEF";

bool is_plain(char c) {
  return ('a' <= c && c <= 'z') || ('A' <= c && c <= 'Z') || ('0' <= c && c <= '9') ||
         std::string_view("-._~/").find(c) != std::string_view::npos;
}

std::optional<unsigned> value_of_digit(char c) {
  const char upper = 'a' <= c && c <= 'f' ? static_cast<char>(c - 'a' + 'A') : c;
  const std::size_t value = digits.find(upper);
  if (value == std::string_view::npos) return std::nullopt;
  return static_cast<unsigned>(value);
}

/// Returns the byte that a text begins with, if that is a "%" and two digits.
std::optional<char> encoded_byte(std::string_view text) {
  if (text.size() < 3 || text.front() != '%') return std::nullopt;
  const std::optional<unsigned> high = value_of_digit(text[1]);
  const std::optional<unsigned> low = value_of_digit(text[2]);
  if (!high || !low) return std::nullopt;
  return static_cast<char>(16 * *high + *low);
}

}  // namespace

std::string percent_encoded(std::string_view path) {
  std::string text;
  for (const char c : path) {
    if (is_plain(c)) {
      text += c;
      continue;
    }
    const auto byte = static_cast<unsigned char>(c);
    text += '%';
    text += digits[byte >> 4U];
    text += digits[byte & 0xFU];
  }
  return text;
}

std::string percent_decoded(std::string_view text) {
  std::string bytes;
  while (!text.empty()) {
    const std::optional<char> byte = encoded_byte(text);
    bytes += byte.value_or(text.front());
    text.remove_prefix(byte ? 3 : 1);
  }
  return bytes;
}

}  // namespace kelp::input::quill::tool
