#include "quill-inp/editing/change_report.hpp"

#include <cstddef>
#include <string_view>
#include <utility>

namespace kelp::input::quill::tool {

namespace {

using lossless::LineChange;

enum class ChangeKind { Added, Changed, Removed };

ChangeKind kind_of(const LineChange& change) {
  if (!change.new_line) return ChangeKind::Removed;
  return change.old_line ? ChangeKind::Changed : ChangeKind::Added;
}

const char* word_for(ChangeKind kind) {
  switch (kind) {
    case ChangeKind::Added:
      return "added";
    case ChangeKind::Changed:
      return "changed";
    case ChangeKind::Removed:
      break;
  }
  return "removed";
}

std::size_t number_of(const LineChange& change) {
  return change.new_line ? *change.new_line : *change.old_line;
}

/// Returns the end of the run of changes of one kind, in lines without a gap, that starts at
/// `begin`.
std::size_t end_of_run(const std::vector<LineChange>& changes, std::size_t begin) {
  std::size_t end = begin + 1;
  while (end < changes.size() && kind_of(changes[end]) == kind_of(changes[begin]) &&
         number_of(changes[end]) == number_of(changes[begin]) + (end - begin))
    ++end;
  return end;
}

std::string_view content_of_change(const lossless::ReadText& read,
                                   const lossless::SurgicalEdit& edit, const LineChange& change) {
  return change.new_line ? lossless::content_of(edit.proof.lines[*change.new_line - 1], edit.text)
                         : lossless::content_of(read.lines[*change.old_line - 1], read.text);
}

}  // namespace

std::vector<ChangeNote> describe_changes(const ReadInput& input,
                                         const lossless::SurgicalEdit& edit) {
  std::vector<ChangeNote> notes;
  for (std::size_t begin = 0; begin < edit.changes.size();) {
    const std::size_t end = end_of_run(edit.changes, begin);
    const LineChange& change = edit.changes[begin];
    const std::size_t first = number_of(change);
    std::string message = word_for(kind_of(change));
    if (end - begin > 1) {
      message += ", up to line " + std::to_string(first + (end - begin) - 1);
    } else {
      message += ": ";
      message += content_of_change(input.read, edit, change);
    }
    notes.push_back({{input.name, first}, std::move(message)});
    begin = end;
  }
  return notes;
}

}  // namespace kelp::input::quill::tool
