#include "language_server/documents/snapshot.hpp"

#include <utility>

#include "language_server/documents/text_positions.hpp"
#include "language_server/protocol/response_error.hpp"
#include "lint/lint.hpp"

namespace kelp::input::quill::language_server {

Snapshot::Snapshot(std::string uri, std::int64_t version, lossless::ReadText read,
                   LineStarts line_starts, PositionEncoding encoding)
    : uri_(std::move(uri)),
      version_(version),
      read_(std::move(read)),
      line_starts_(std::move(line_starts)),
      encoding_(encoding),
      units_(read_.text, encoding) {}

std::size_t Snapshot::line_at(std::size_t offset) const {
  return lines().empty() ? 0 : lint::place_of(offset, lines()).line - 1;
}

std::string_view Snapshot::content(std::size_t line) const {
  return lossless::content_of(lines()[line], text());
}

lint::Range Snapshot::range_of(std::string_view piece) const {
  return {static_cast<std::size_t>(piece.data() - text().data()), piece.size()};
}

std::size_t Snapshot::offset_of(const Position& position) const {
  const auto offset = find_offset(position, text(), line_starts_, encoding_);
  if (!offset)
    throw ResponseError(ErrorCode::InvalidParams, "the text has no position " +
                                                      std::to_string(position.line) + ":" +
                                                      std::to_string(position.character));
  return *offset;
}

lint::Range Snapshot::range_of(const PositionRange& range) const {
  const std::size_t start = offset_of(range.start);
  const std::size_t end = offset_of(range.end);
  if (end < start) throw ResponseError(ErrorCode::InvalidParams, "the range ends before it begins");
  return {start, end - start};
}

Position Snapshot::position_of(std::size_t offset) const {
  return position_at(offset, text(), line_starts_, units_);
}

PositionRange Snapshot::position_range_of(const lint::Range& range) const {
  return {position_of(range.offset), position_of(range.end())};
}

}  // namespace kelp::input::quill::language_server
