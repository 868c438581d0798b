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

/// Finds lines of a text by their numbers, which have to come in ascending order.
class LineSearch {
 public:
  explicit LineSearch(std::string_view text) : rest_(text) {}

  /// Returns the line without its line end.
  std::string_view find(std::size_t number) {
    for (; number_ < number; ++number_) rest_.remove_prefix(rest_.find('\n') + 1);
    const std::size_t end = rest_.find('\n');
    std::string_view line = rest_.substr(0, end);
    if (end != std::string_view::npos && !line.empty() && line.back() == '\r')
      line.remove_suffix(1);
    return line;
  }

 private:
  std::string_view rest_;
  std::size_t number_ = 1;
};

}  // namespace

std::vector<ChangeNote> describe_changes(const ReadInput& input, const lossless::NewText& edited) {
  std::vector<ChangeNote> notes;
  LineSearch new_lines(edited.text);
  for (std::size_t begin = 0; begin < edited.changes.size();) {
    const std::size_t end = end_of_run(edited.changes, begin);
    const LineChange& change = edited.changes[begin];
    const std::size_t first = number_of(change);
    std::string message = word_for(kind_of(change));
    if (end - begin > 1) {
      message += ", up to line " + std::to_string(first + (end - begin) - 1);
    } else {
      message += ": ";
      message += change.new_line
                     ? new_lines.find(first)
                     : lossless::content_of(input.read.lines[first - 1], input.read.text);
    }
    notes.push_back({{input.name, first}, std::move(message)});
    begin = end;
  }
  return notes;
}

}  // namespace kelp::input::quill::tool
