#include "kelp/input/quill/lossless/surgical_edit.hpp"

#include <algorithm>
#include <utility>

#include "editing/coordinate_surgery.hpp"
#include "editing/header_surgery.hpp"
#include "kelp/input/quill/writer.hpp"

namespace kelp::input::quill::lossless {

namespace {

bool is_post_processing(const LineRecord& line) {
  return line.role == LineRole::PostCommand || line.role == LineRole::Dropped;
}

/// Post-processing lines are never changed or removed, only appended.
void add_post_lines(const ReadText& read, const QuillInput& after, EditedLines& lines) {
  std::vector<std::string> added;
  for (std::size_t i = read.result.input.post_commands.size(); i < after.post_commands.size(); ++i)
    added.push_back(to_string(after.post_commands[i]));
  if (added.empty()) return;
  const std::size_t gap = lines.gap_after_text();
  if (std::none_of(read.lines.begin(), read.lines.end(), is_post_processing)) {
    lines.insert_section(gap, std::move(added));
    return;
  }
  for (std::string& line : added) lines.insert(gap, std::move(line));
}

}  // namespace

SurgicalEdit render(const ReadText& read, const TrackedDocument& document, double max_change) {
  const QuillInput& after = document.document();
  EditedLines lines(read);
  HeaderSurgery header(read, document);
  CoordinateSurgery coordinates(read, after.geometry);
  header.change_lines(lines);
  coordinates.change_lines(lines);
  header.add_lines(lines);
  coordinates.add_lines(lines, header.end());
  add_post_lines(read, after, lines);

  EditedText edited = lines.finish();
  SurgicalEdit result;
  result.text = std::move(edited.text);
  result.changes = std::move(edited.changes);
  result.quoting_problems = header.problems();
  result.proof = prove(result.text, after, max_change);
  return result;
}

}  // namespace kelp::input::quill::lossless
