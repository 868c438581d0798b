#include "quill-inp/text/line_matching.hpp"

#include <algorithm>
#include <cstdint>
#include <unordered_map>

namespace kelp::input::quill::tool {

namespace {

using Ids = std::vector<std::size_t>;

// The search takes time and room for the square of it.
constexpr std::ptrdiff_t most_differences = 1000;

/// Equal lines get equal numbers, so that the search need not compare texts.
class LineNumbering {
 public:
  Ids number(const std::vector<std::string_view>& lines) {
    Ids ids;
    ids.reserve(lines.size());
    for (const std::string_view line : lines)
      ids.push_back(known_.emplace(line, known_.size()).first->second);
    return ids;
  }

 private:
  std::unordered_map<std::string_view, std::size_t> known_;
};

/// A pair of ends that differ, with what is equal in front of and behind it cut off.
struct Middle {
  std::size_t prefix = 0;
  std::size_t old_end = 0;
  std::size_t new_end = 0;
};

Middle cut_equal_ends(const Ids& old_ids, const Ids& new_ids) {
  Middle middle{0, old_ids.size(), new_ids.size()};
  while (middle.prefix < std::min(middle.old_end, middle.new_end) &&
         old_ids[middle.prefix] == new_ids[middle.prefix])
    ++middle.prefix;
  while (middle.old_end > middle.prefix && middle.new_end > middle.prefix &&
         old_ids[middle.old_end - 1] == new_ids[middle.new_end - 1]) {
    --middle.old_end;
    --middle.new_end;
  }
  return middle;
}

/// The greedy search of E. W. Myers (An O(ND) Difference Algorithm and Its Variations, 1986). On
/// diagonal k, where the position in the old text less that in the new one is k, reach_ holds how
/// far into the old text one gets with the number of differences tried last.
class GreedySearch {
 public:
  GreedySearch(const Ids& old_ids, const Ids& new_ids, const Middle& middle)
      : old_ids_(old_ids),
        new_ids_(new_ids),
        middle_(middle),
        old_size_(static_cast<std::ptrdiff_t>(middle.old_end - middle.prefix)),
        new_size_(static_cast<std::ptrdiff_t>(middle.new_end - middle.prefix)),
        reach_(static_cast<std::size_t>(2 * most_differences + 3), 0) {}

  /// Returns the runs of the middle, or none when there are too many differences.
  std::vector<MatchingRun> run() {
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
    return old_ids_[middle_.prefix + static_cast<std::size_t>(old_at)] ==
           new_ids_[middle_.prefix + static_cast<std::size_t>(new_at)];
  }

  /// Goes one difference further on every diagonal; true when that reaches both ends.
  bool advance(std::ptrdiff_t count) {
    for (std::ptrdiff_t k = -count; k <= count; k += 2) {
      const bool adds = k == -count || (k != count && at(k - 1) < at(k + 1));
      std::ptrdiff_t old_at = count == 0 ? 0 : (adds ? at(k + 1) : at(k - 1) + 1);
      std::ptrdiff_t new_at = old_at - k;
      while (old_at < old_size_ && new_at < new_size_ && is_equal(old_at, new_at)) {
        ++old_at;
        ++new_at;
      }
      at(k) = old_at;
      if (old_at >= old_size_ && new_at >= new_size_) return true;
    }
    return false;
  }

  /// Walks from the ends back to the beginnings along the differences that were chosen.
  std::vector<MatchingRun> trace_back(std::ptrdiff_t count) const {
    std::vector<MatchingRun> runs;
    std::ptrdiff_t old_at = old_size_;
    std::ptrdiff_t new_at = new_size_;
    for (; count > 0; --count) {
      const std::vector<std::ptrdiff_t>& before = history_[static_cast<std::size_t>(count)];
      const auto reach = [&](std::ptrdiff_t diagonal) {
        return before[static_cast<std::size_t>(diagonal + count)];
      };
      const std::ptrdiff_t k = old_at - new_at;
      const bool adds = k == -count || (k != count && reach(k - 1) < reach(k + 1));
      const std::ptrdiff_t old_before = adds ? reach(k + 1) : reach(k - 1);
      const std::ptrdiff_t new_before = old_before - (adds ? k + 1 : k - 1);
      const std::ptrdiff_t run_begin = adds ? old_before : old_before + 1;
      add_run(runs, run_begin, run_begin - k, old_at - run_begin);
      old_at = old_before;
      new_at = new_before;
    }
    add_run(runs, 0, 0, old_at);
    std::reverse(runs.begin(), runs.end());
    return runs;
  }

  void add_run(std::vector<MatchingRun>& runs, std::ptrdiff_t old_begin, std::ptrdiff_t new_begin,
               std::ptrdiff_t length) const {
    if (length == 0) return;
    runs.push_back({middle_.prefix + static_cast<std::size_t>(old_begin),
                    middle_.prefix + static_cast<std::size_t>(new_begin),
                    static_cast<std::size_t>(length)});
  }

  const Ids& old_ids_;
  const Ids& new_ids_;
  Middle middle_;
  std::ptrdiff_t old_size_;
  std::ptrdiff_t new_size_;
  std::vector<std::ptrdiff_t> reach_;
  std::vector<std::vector<std::ptrdiff_t>> history_;
};

/// Appends a run, to the last one where they touch.
void append(std::vector<MatchingRun>& runs, const MatchingRun& run) {
  if (!runs.empty()) {
    MatchingRun& last = runs.back();
    if (last.old_begin + last.length == run.old_begin &&
        last.new_begin + last.length == run.new_begin) {
      last.length += run.length;
      return;
    }
  }
  runs.push_back(run);
}

}  // namespace

std::vector<MatchingRun> match_lines(const std::vector<std::string_view>& old_lines,
                                     const std::vector<std::string_view>& new_lines) {
  LineNumbering numbering;
  const Ids old_ids = numbering.number(old_lines);
  const Ids new_ids = numbering.number(new_lines);
  const Middle middle = cut_equal_ends(old_ids, new_ids);

  std::vector<MatchingRun> runs;
  if (middle.prefix > 0) append(runs, {0, 0, middle.prefix});
  for (const MatchingRun& run : GreedySearch(old_ids, new_ids, middle).run()) append(runs, run);
  if (middle.old_end < old_ids.size())
    append(runs, {middle.old_end, middle.new_end, old_ids.size() - middle.old_end});
  runs.push_back({old_ids.size(), new_ids.size(), 0});
  return runs;
}

}  // namespace kelp::input::quill::tool
