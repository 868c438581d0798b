#include "reader/line_records.hpp"

#include <cstddef>

namespace kelp::input::quill {

namespace {

/// Only "\n" and "\r\n" end a line, so the byte after the content tells which of them it is.
std::size_t terminator_length_at(std::string_view text, std::size_t offset) {
  if (offset == text.size()) return 0;
  return text[offset] == '\r' ? 2 : 1;
}

}  // namespace

std::vector<LineRecord> locate_lines(std::string_view text, const std::vector<std::string>& lines) {
  std::vector<LineRecord> records(lines.size());
  std::size_t offset = 0;
  for (std::size_t i = 0; i < lines.size(); ++i) {
    LineRecord& record = records[i];
    record.offset = offset;
    record.length = lines[i].size();
    record.terminator_length = terminator_length_at(text, offset + record.length);
    offset += record.length + record.terminator_length;
  }
  return records;
}

}  // namespace kelp::input::quill
