#include "language_server/documents/text_positions.hpp"

#include <algorithm>

namespace kelp::input::quill::language_server {

std::optional<std::size_t> find_offset(const Position& position, std::string_view text,
                                       const LineStarts& lines, PositionEncoding encoding) {
  if (position.line >= lines.count()) return std::nullopt;
  const std::optional<std::size_t> bytes =
      bytes_of_units(lines.content(position.line, text), position.character, encoding);
  if (!bytes) return std::nullopt;
  return lines.start_of(position.line) + *bytes;
}

Position position_at(std::size_t offset, std::string_view text, const LineStarts& lines,
                     PositionEncoding encoding) {
  const std::size_t line = lines.line_at(offset);
  const std::string_view content = lines.content(line, text);
  const std::size_t bytes = std::min(offset - lines.start_of(line), content.size());
  return {line, count_units(content.substr(0, bytes), encoding)};
}

}  // namespace kelp::input::quill::language_server
