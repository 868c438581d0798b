#include "quill-inp/text/line_matching.hpp"

#include <algorithm>
#include <unordered_map>

namespace kelp::input::quill::tool {

namespace {

using Lines = std::vector<std::string_view>;
using Backwards = Lines::const_reverse_iterator;
using Ids = std::vector<std::size_t>;
using Known = std::unordered_map<std::string_view, std::size_t>;

// The time and memory of the search grow with the square of this number.
constexpr std::ptrdiff_t most_differences = 1000;

/// How many lines two texts have in common at their beginning and, of the rest, at their end.
struct Ends {
  std::size_t prefix = 0;
  std::size_t suffix = 0;
};

Ends common_ends(const Lines& old_lines, const Lines& new_lines) {
  const auto begin =
      std::mismatch(old_lines.begin(), old_lines.end(), new_lines.begin(), new_lines.end());
  const auto end = std::mismatch(old_lines.rbegin(), Backwards(begin.first), new_lines.rbegin(),
                                 Backwards(begin.second));
  return {static_cast<std::size_t>(begin.first - old_lines.begin()),
          static_cast<std::size_t>(end.first - old_lines.rbegin())};
}

/// Equal lines get equal numbers, so that the search does not have to compare texts.
Ids number_lines(const Lines& lines, const Ends& ends, Known& known) {
  Ids ids;
  ids.reserve(lines.size() - ends.prefix - ends.suffix);
  for (std::size_t i = ends.prefix; i < lines.size() - ends.suffix; ++i)
    ids.push_back(known.emplace(lines[i], known.size()).first->second);
  return ids;
}

/// Appends a run. If it touches the last one, that one grows instead.
void append(std::vector<MatchingRun>& runs, const MatchingRun& run) {
  if (run.length == 0) return;
  if (!runs.empty() && runs.back().old_begin + runs.back().length == run.old_begin &&
      runs.back().new_begin + runs.back().length == run.new_begin) {
    runs.back().length += run.length;
  } else {
    runs.push_back(run);
  }
}

/// The greedy search of E. W. Myers (An O(ND) Difference Algorithm and Its Variations, 1986). On
/// diagonal k, where the position in the old text minus that in the new one is k, reach_ holds how
/// far into the old text the search gets with the number of differences tried last.
class GreedySearch {
 public:
  GreedySearch(const Ids& old_ids, const Ids& new_ids)
      : old_ids_(old_ids),
        new_ids_(new_ids),
        old_size_(static_cast<std::ptrdiff_t>(old_ids.size())),
        new_size_(static_cast<std::ptrdiff_t>(new_ids.size())),
        reach_(static_cast<std::size_t>(2 * most_differences + 3), 0) {}

  /// Returns the runs from the last to the first, or none when there are too many differences.
  std::vector<MatchingRun> run() {
    // A text without lines has none in common, and the search would find that out one by one.
    if (old_ids_.empty() || new_ids_.empty()) return {};
    for (std::ptrdiff_t count = 0; count <= most_differences; ++count) {
      history_.emplace_back(&at(-count), &at(count) + 1);
      if (advance(count)) return trace_back(count);
    }
    return {};
  }

 private:
  std::ptrdiff_t& at(std::ptrdiff_t diagonal) {
    return reach_[static_cast<std::size_t>(diagonal + most_differences + 1)];
  }

  bool is_equal(std::ptrdiff_t old_at, std::ptrdiff_t new_at) const {
    return old_ids_[static_cast<std::size_t>(old_at)] == new_ids_[static_cast<std::size_t>(new_at)];
  }

  /// Goes one difference further on every diagonal; true when that reaches both ends.
  bool advance(std::ptrdiff_t count) {
    for (std::ptrdiff_t k = -count; k <= count; k += 2) {
      const bool adds = k == -count || (k != count && at(k - 1) < at(k + 1));
      std::ptrdiff_t old_at = count == 0 ? 0 : (adds ? at(k + 1) : at(k - 1) + 1);
      while (old_at < old_size_ && old_at - k < new_size_ && is_equal(old_at, old_at - k)) ++old_at;
      at(k) = old_at;
      if (old_at >= old_size_ && old_at - k >= new_size_) return true;
    }
    return false;
  }

  /// Walks from the ends back to the beginnings along the differences that were chosen.
  std::vector<MatchingRun> trace_back(std::ptrdiff_t count) const {
    std::vector<MatchingRun> runs;
    const auto add_run = [&](std::ptrdiff_t begin, std::ptrdiff_t diagonal, std::ptrdiff_t end) {
      runs.push_back({static_cast<std::size_t>(begin), static_cast<std::size_t>(begin - diagonal),
                      static_cast<std::size_t>(end - begin)});
    };
    std::ptrdiff_t old_at = old_size_;
    std::ptrdiff_t k = old_size_ - new_size_;
    for (; count > 0; --count) {
      const std::vector<std::ptrdiff_t>& before = history_[static_cast<std::size_t>(count)];
      const auto reach = [&](std::ptrdiff_t diagonal) {
        return before[static_cast<std::size_t>(diagonal + count)];
      };
      const bool adds = k == -count || (k != count && reach(k - 1) < reach(k + 1));
      const std::ptrdiff_t from = adds ? k + 1 : k - 1;
      add_run(reach(from) + (adds ? 0 : 1), k, old_at);
      old_at = reach(from);
      k = from;
    }
    add_run(0, 0, old_at);
    return runs;
  }

  const Ids& old_ids_;
  const Ids& new_ids_;
  std::ptrdiff_t old_size_;
  std::ptrdiff_t new_size_;
  std::vector<std::ptrdiff_t> reach_;
  std::vector<std::vector<std::ptrdiff_t>> history_;
};

}  // namespace

std::vector<MatchingRun> match_lines(const Lines& old_lines, const Lines& new_lines) {
  const Ends ends = common_ends(old_lines, new_lines);
  // The numbers are needed only between the ends, and in most edits that is a small part.
  Known known;
  const Ids old_ids = number_lines(old_lines, ends, known);
  const Ids new_ids = number_lines(new_lines, ends, known);
  known.clear();

  std::vector<MatchingRun> runs;
  append(runs, {0, 0, ends.prefix});
  std::vector<MatchingRun> middle = GreedySearch(old_ids, new_ids).run();
  std::reverse(middle.begin(), middle.end());
  for (const MatchingRun& run : middle)
    append(runs, {ends.prefix + run.old_begin, ends.prefix + run.new_begin, run.length});
  append(runs, {old_lines.size() - ends.suffix, new_lines.size() - ends.suffix, ends.suffix});
  runs.push_back({old_lines.size(), new_lines.size(), 0});
  return runs;
}

Lines lines_with_ends(std::string_view text) {
  Lines lines;
  lines.reserve(static_cast<std::size_t>(std::count(text.begin(), text.end(), '\n')) + 1);
  while (!text.empty()) {
    const std::size_t newline = text.find('\n');
    const std::size_t length = newline == std::string_view::npos ? text.size() : newline + 1;
    lines.push_back(text.substr(0, length));
    text.remove_prefix(length);
  }
  return lines;
}

std::vector<LineChange> find_line_changes(const Lines& old_lines, const Lines& new_lines) {
  std::vector<LineChange> changes;
  std::size_t old_at = 0;
  std::size_t new_at = 0;
  for (const MatchingRun& run : match_lines(old_lines, new_lines)) {
    if (old_at < run.old_begin || new_at < run.new_begin)
      changes.push_back({old_at, run.old_begin, new_at, run.new_begin});
    old_at = run.old_begin + run.length;
    new_at = run.new_begin + run.length;
  }
  return changes;
}

}  // namespace kelp::input::quill::tool
