#include "edit_support/physical_lines.hpp"

#include <string>

#include "kelp/core/text.hpp"

namespace kelp::input::quill::edit_support {

namespace {

/// Only "\n" and "\r\n" end a line, so what stands behind a line's content decides.
std::size_t terminator_length_at(std::string_view text, std::size_t offset) {
  if (offset == text.size()) return 0;
  return text[offset] == '\r' ? 2 : 1;
}

}  // namespace

std::vector<PhysicalLine> find_physical_lines(std::string_view text) {
  std::vector<PhysicalLine> lines;
  std::size_t offset = 0;
  for (const std::string& content : core::text::split_lines(text)) {
    const std::size_t end = offset + content.size();
    const std::size_t terminator_length = terminator_length_at(text, end);
    lines.push_back({offset, content.size(), terminator_length, core::text::trim(content).empty()});
    offset = end + terminator_length;
  }
  return lines;
}

}  // namespace kelp::input::quill::edit_support
