#ifndef KELP_INPUT_QUILL_LOSSLESS_READ_TEXT_HPP
#define KELP_INPUT_QUILL_LOSSLESS_READ_TEXT_HPP

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
  std::string text = {};
  ParseResult result = {};
  std::vector<LineRecord> lines = {};
};

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
