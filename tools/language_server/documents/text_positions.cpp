#include "language_server/documents/text_positions.hpp"

#include <algorithm>

namespace kelp::input::quill::language_server {

std::optional<std::size_t> find_offset(const Position& position, std::string_view text,
                                       const LineStarts& lines, PositionEncoding encoding) {
  if (position.line >= lines.count()) return text.size();
  const std::optional<std::size_t> bytes =
      bytes_of_units(lines.content(position.line, text), position.character, encoding);
  if (!bytes) return std::nullopt;
  return lines.start_of(position.line) + *bytes;
}

Position position_at(std::size_t offset, std::string_view text, const LineStarts& lines,
                     const UnitCounts& units) {
  const std::size_t line = lines.line_at(offset);
  const std::size_t start = lines.start_of(line);
  const std::size_t end = std::min(offset, start + lines.content(line, text).size());
  return {line, units.between(start, end, text)};
}

}  // namespace kelp::input::quill::language_server
