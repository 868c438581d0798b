#ifndef KELP_INPUT_QUILL_LANGUAGE_SERVER_DOCUMENTS_TEXT_POSITIONS_HPP
#define KELP_INPUT_QUILL_LANGUAGE_SERVER_DOCUMENTS_TEXT_POSITIONS_HPP

#include <cstddef>
#include <optional>
#include <string_view>

#include "language_server/documents/line_starts.hpp"
#include "language_server/documents/position_encoding.hpp"
#include "language_server/documents/unit_counts.hpp"
#include "language_server/protocol/position.hpp"

namespace kelp::input::quill::language_server {

/// Returns the offset of a position in a text with these lines. A position after the end of its
/// line means the end of that line. A position after the last line means the end of the text; some
/// editors send it when the last line is removed. Returns nothing for the middle of a character.
std::optional<std::size_t> find_offset(const Position& position, std::string_view text,
                                       const LineStarts& lines, PositionEncoding encoding);

/// Returns the position of a byte, or of the end of a text with these lines and units. A byte in
/// the middle of a character counts as after it, and one in the middle of CR LF as the end of the
/// line.
Position position_at(std::size_t offset, std::string_view text, const LineStarts& lines,
                     const UnitCounts& units);

}  // namespace kelp::input::quill::language_server

#endif  // KELP_INPUT_QUILL_LANGUAGE_SERVER_DOCUMENTS_TEXT_POSITIONS_HPP
