#ifndef KELP_INPUT_QUILL_LANGUAGE_SERVER_DOCUMENTS_SNAPSHOT_HPP
#define KELP_INPUT_QUILL_LANGUAGE_SERVER_DOCUMENTS_SNAPSHOT_HPP

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "kelp/input/quill/lossless/read_text.hpp"
#include "language_server/documents/line_starts.hpp"
#include "language_server/documents/position_encoding.hpp"
#include "language_server/documents/unit_counts.hpp"
#include "language_server/protocol/position.hpp"
#include "lint/finding.hpp"

namespace kelp::input::quill::language_server {

/// One version of a text that is open in the editor, and what the reader made of it. It never
/// changes. Places are offsets in bytes everywhere; only at the edge are they positions of the
/// protocol.
///
/// There are two kinds of lines: those of the reader, `lines()`, and those of the protocol, which
/// only positions count. Code that looks at a line of an input uses the first.
class Snapshot {
 public:
  Snapshot(std::string uri, std::int64_t version, lossless::ReadText read, LineStarts line_starts,
           PositionEncoding encoding);

  const std::string& uri() const { return uri_; }
  std::int64_t version() const { return version_; }
  PositionEncoding encoding() const { return encoding_; }

  /// The text, which is UTF-8, and what the reader made of it.
  const lossless::ReadText& read() const { return read_; }
  std::string_view text() const { return read_.text; }
  const QuillInput& input() const { return read_.result.input; }
  const std::vector<LineRecord>& lines() const { return read_.lines; }

  /// Returns the index in lines() of the line that a byte is on; the last line for the end of the
  /// text. Returns lines().size() for a text without lines.
  std::size_t line_at(std::size_t offset) const;

  /// Returns a line without its line end, by its index in lines().
  std::string_view content(std::size_t line) const;

  /// Returns where a view of the text is.
  lint::Range range_of(std::string_view piece) const;

  /// Return the place of a position and of a range. Throw ResponseError, InvalidParams, for a line
  /// that the text does not have, for the middle of a character, and for a range that ends before
  /// it begins.
  std::size_t offset_of(const Position& position) const;
  lint::Range range_of(const PositionRange& range) const;

  /// Return the position of a byte, or of the end of the text, and those of a range.
  Position position_of(std::size_t offset) const;
  PositionRange position_range_of(const lint::Range& range) const;

  /// Gives back what the snapshot was made of.
  lossless::ReadText take_read() && { return std::move(read_); }
  LineStarts take_line_starts() && { return std::move(line_starts_); }

 private:
  std::string uri_;
  std::int64_t version_;
  lossless::ReadText read_;
  LineStarts line_starts_;
  PositionEncoding encoding_;
  UnitCounts units_;
};

}  // namespace kelp::input::quill::language_server

#endif  // KELP_INPUT_QUILL_LANGUAGE_SERVER_DOCUMENTS_SNAPSHOT_HPP
