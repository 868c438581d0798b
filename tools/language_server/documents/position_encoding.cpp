#include "language_server/documents/position_encoding.hpp"

namespace kelp::input::quill::language_server {

namespace {

/// Whether a byte of a UTF-8 text is not the first of its character.
bool is_continuation(char byte) { return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U; }

/// How many units a byte adds, counted at the first byte of each character. Only characters of four
/// bytes take two halves of a surrogate pair.
std::size_t units_at(char byte, PositionEncoding encoding) {
  if (encoding == PositionEncoding::Utf8) return 1;
  if (is_continuation(byte)) return 0;
  const bool is_pair = static_cast<unsigned char>(byte) >= 0xF0U;
  return encoding == PositionEncoding::Utf16 && is_pair ? 2 : 1;
}

}  // namespace

std::string_view name_of(PositionEncoding encoding) {
  if (encoding == PositionEncoding::Utf8) return "utf-8";
  return encoding == PositionEncoding::Utf16 ? "utf-16" : "utf-32";
}

std::size_t count_units(std::string_view text, PositionEncoding encoding) {
  if (encoding == PositionEncoding::Utf8) return text.size();
  std::size_t units = 0;
  for (const char byte : text) units += units_at(byte, encoding);
  return units;
}

std::optional<std::size_t> bytes_of_units(std::string_view text, std::size_t units,
                                          PositionEncoding encoding) {
  std::size_t bytes = 0;
  std::size_t counted = 0;
  while (bytes < text.size() && counted < units) counted += units_at(text[bytes++], encoding);
  if (counted > units) return std::nullopt;
  if (encoding == PositionEncoding::Utf8) {
    if (bytes < text.size() && is_continuation(text[bytes])) return std::nullopt;
    return bytes;
  }
  while (bytes < text.size() && is_continuation(text[bytes])) ++bytes;
  return bytes;
}

}  // namespace kelp::input::quill::language_server
