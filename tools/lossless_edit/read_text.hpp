#ifndef KELP_INPUT_QUILL_LOSSLESS_EDIT_READ_TEXT_HPP
#define KELP_INPUT_QUILL_LOSSLESS_EDIT_READ_TEXT_HPP

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "kelp/input/quill/lines.hpp"

namespace kelp::input::quill::lossless_edit {

/// A text and what the reader made of it. It is passed around so that a text is read only once.
struct ReadText {
  std::string text = {};
  ParseResult result = {};
  std::vector<LineRecord> lines = {};
};

ReadText read_text(std::string text);

/// Returns a line of `text` without its line end.
std::string_view content_of(const LineRecord& line, std::string_view text);

/// Returns the position in `lines` of the line with this role and index, or nothing.
std::optional<std::size_t> find_line(const std::vector<LineRecord>& lines, LineRole role,
                                     std::optional<std::size_t> index = std::nullopt);

}  // namespace kelp::input::quill::lossless_edit

#endif  // KELP_INPUT_QUILL_LOSSLESS_EDIT_READ_TEXT_HPP
