#include "quill-inp/editing/change_report.hpp"

#include <cstddef>
#include <utility>
#include <vector>

#include "kelp/core/text.hpp"

namespace kelp::input::quill::tool {

namespace {

using edit_support::LineChange;

std::string_view verb_of(const LineChange& change) {
  if (!change.new_line) return "removed";
  return change.old_line ? "changed" : "added";
}

std::size_t number_of(const LineChange& change) {
  return change.new_line ? *change.new_line : *change.old_line;
}

/// Returns the end of the run of changes of one kind, line after line, that begins at `begin`.
std::size_t end_of_run(const std::vector<LineChange>& changes, std::size_t begin) {
  std::size_t end = begin + 1;
  while (end < changes.size() && verb_of(changes[end]) == verb_of(changes[begin]) &&
         number_of(changes[end]) == number_of(changes[begin]) + (end - begin))
    ++end;
  return end;
}

}  // namespace

std::vector<ChangeNote> describe_changes(const std::string& name, std::string_view old_text,
                                         const edit_support::SurgicalEdit& edit) {
  const std::vector<std::string> old_lines = core::text::split_lines(old_text);
  const std::vector<std::string> new_lines = core::text::split_lines(edit.text);
  std::vector<ChangeNote> notes;
  for (std::size_t begin = 0; begin < edit.changes.size();) {
    const std::size_t end = end_of_run(edit.changes, begin);
    const LineChange& change = edit.changes[begin];
    const std::size_t first = number_of(change);
    std::string message(verb_of(change));
    if (end - begin > 1) {
      message += ", up to line " + std::to_string(first + (end - begin) - 1);
    } else {
      message += ": " + (change.new_line ? new_lines : old_lines)[first - 1];
    }
    notes.push_back({{name, first}, std::move(message)});
    begin = end;
  }
  return notes;
}

}  // namespace kelp::input::quill::tool
