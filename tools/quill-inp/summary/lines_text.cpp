#include "quill-inp/summary/lines_text.hpp"

#include <algorithm>
#include <cstddef>
#include <string>

#include "kelp/input/quill/lossless/wording.hpp"
#include "quill-inp/text/colors.hpp"
#include "quill-inp/text/terminal_text.hpp"

namespace kelp::input::quill::tool {

namespace {

std::string padding(const std::string& text, std::size_t width) {
  return std::string(width - std::min(width, text.size()), ' ');
}

std::string describe(const LineRecord& line, const QuillInput& input) {
  return lossless::describe({line.role, line.index}, input);
}

/// Returns how long the longest description of a line is.
std::size_t description_width(const lossless::ReadText& read) {
  std::size_t width = 0;
  for (const LineRecord& line : read.lines)
    width = std::max(width, describe(line, read.result.input).size());
  return width;
}

}  // namespace

void write_lines_text(const lossless::ReadText& read, bool is_colored, const TextSink& sink) {
  const std::size_t number_width = std::to_string(read.lines.size()).size();
  const std::size_t width = description_width(read);
  for (std::size_t i = 0; i < read.lines.size(); ++i) {
    const LineRecord& line = read.lines[i];
    const std::string content = shown_on_one_line(lossless::content_of(line, read.text));
    const std::string number = std::to_string(i + 1);
    const std::string description = describe(line, read.result.input);
    const bool is_dropped = line.role == LineRole::Dropped;
    std::string text =
        padding(number, number_width) + colored(number, label_color, is_colored) + "  ";
    text += colored(description, warning_color, is_colored && is_dropped);
    if (!content.empty()) text += padding(description, width) + "  ";
    sink(text);
    sink(content);
    sink("\n");
  }
}

}  // namespace kelp::input::quill::tool
