#ifndef KELP_INPUT_QUILL_LOSSLESS_READ_TEXT_HPP
#define KELP_INPUT_QUILL_LOSSLESS_READ_TEXT_HPP

/// @file
/// A text with what the reader made of it.
///
///     const ReadText read = read_text("#opt\n\n0 1\nHe  0 0 0\n");
///     const std::optional<std::size_t> atom = find_line(read.lines, LineRole::Atom, 0);
///     content_of(read.lines[*atom], read.text);  // "He  0 0 0"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "kelp/input/quill/lines.hpp"
#include "kelp/input/quill/lossless/export.hpp"

namespace kelp::input::quill::lossless {

/// A text and what the reader made of it. It is passed around so that a text is read only once.
struct ReadText {
  std::string text = {};               ///< byte for byte
  ParseResult result = {};             ///< what parse_string() returns for it
  std::vector<LineRecord> lines = {};  ///< what parse_lines() adds to that
};

/// Reads a text and keeps it. Nothing is thrown for any content.
KELP_QUILL_LOSSLESS_EXPORT ReadText read_text(std::string text);

/// Returns a line of `text` without its line end.
KELP_QUILL_LOSSLESS_EXPORT std::string_view content_of(const LineRecord& line,
                                                       std::string_view text);

/// Returns the position in `lines` of the line with this role and index, or nothing.
KELP_QUILL_LOSSLESS_EXPORT std::optional<std::size_t> find_line(
    const std::vector<LineRecord>& lines, LineRole role,
    std::optional<std::size_t> index = std::nullopt);

}  // namespace kelp::input::quill::lossless

#endif  // KELP_INPUT_QUILL_LOSSLESS_READ_TEXT_HPP
