#include "language_server/editing/changed_lines.hpp"

#include <cstddef>
#include <string>

#include "quill-inp/text/line_matching.hpp"

namespace kelp::input::quill::language_server {

namespace {

using Lines = std::vector<std::string_view>;

/// Returns where lines are in their text.
lint::Range range_of(const Lines& lines, std::size_t begin, std::size_t end,
                     std::string_view text) {
  const auto offset_of = [&](std::size_t line) {
    return line == lines.size() ? text.size()
                                : static_cast<std::size_t>(lines[line].data() - text.data());
  };
  return {offset_of(begin), offset_of(end) - offset_of(begin)};
}

}  // namespace

std::vector<lint::ByteEdit> changed_lines(std::string_view old_text, std::string_view new_text) {
  const Lines old_lines = tool::lines_with_ends(old_text);
  const Lines new_lines = tool::lines_with_ends(new_text);
  std::vector<lint::ByteEdit> edits;
  for (const tool::LineChange& change : tool::find_line_changes(old_lines, new_lines)) {
    const lint::Range fresh = range_of(new_lines, change.new_begin, change.new_end, new_text);
    edits.push_back({range_of(old_lines, change.old_begin, change.old_end, old_text),
                     std::string(new_text.substr(fresh.offset, fresh.length))});
  }
  return edits;
}

}  // namespace kelp::input::quill::language_server
