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

/// Post-processing lines are never changed, only removed and appended. Returns how many are kept.
std::size_t remove_post_lines(const ReadText& read, const TrackedDocument& document,
                              EditedLines& lines) {
  std::size_t kept = 0;
  for (std::size_t i = 0; i < read.lines.size(); ++i) {
    if (read.lines[i].role != LineRole::PostCommand) continue;
    if (document.is_post_command_removed(read.lines[i].index.value())) {
      lines.remove(i);
    } else {
      ++kept;
    }
  }
  return kept;
}

void add_post_lines(const ReadText& read, const QuillInput& after, std::size_t kept,
                    EditedLines& lines) {
  const std::size_t end = after.post_commands.size();
  if (kept >= end) return;
  const bool begins_section =
      std::none_of(read.lines.begin(), read.lines.end(), is_post_processing);
  const std::size_t last = lines.gap_after_text();
  const std::size_t gap = begins_section ? lines.begin_section(last) : last;
  for (std::size_t i = kept; i < end; ++i) lines.insert(gap, to_string(after.post_commands[i]));
  if (begins_section) lines.end_section(gap);
}

}  // namespace

NewText rewrite(const ReadText& read, const TrackedDocument& document) {
  const QuillInput& after = document.document();
  EditedLines lines(read);
  HeaderSurgery header(read, document);
  CoordinateSurgery coordinates(read, after.geometry);
  header.change_lines(lines);
  coordinates.change_lines(lines);
  const std::size_t kept_post_lines = remove_post_lines(read, document, lines);
  header.add_lines(lines);
  coordinates.add_lines(lines, header.end());
  add_post_lines(read, after, kept_post_lines, lines);

  EditedText edited = lines.finish();
  return {std::move(edited.text), std::move(edited.changes), header.problems()};
}

SurgicalEdit render(const ReadText& read, const TrackedDocument& document, double max_change) {
  SurgicalEdit result{rewrite(read, document), {}};
  result.proof = prove(result.text, document.document(), max_change);
  return result;
}

}  // namespace kelp::input::quill::lossless
