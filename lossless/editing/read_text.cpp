#include "kelp/input/quill/lossless/read_text.hpp"

#include <algorithm>
#include <utility>

namespace kelp::input::quill::lossless {

ReadText read_text(std::string text) {
  ParsedLines parsed = parse_lines(text);
  return {std::move(text), std::move(parsed.result), std::move(parsed.lines)};
}

std::string_view content_of(const LineRecord& line, std::string_view text) {
  return text.substr(line.offset, line.length);
}

std::optional<std::size_t> find_line(const std::vector<LineRecord>& lines, LineRole role,
                                     std::optional<std::size_t> index) {
  const auto line = std::find_if(lines.begin(), lines.end(), [&](const LineRecord& record) {
    return record.role == role && record.index == index;
  });
  if (line == lines.end()) return std::nullopt;
  return static_cast<std::size_t>(line - lines.begin());
}

}  // namespace kelp::input::quill::lossless
