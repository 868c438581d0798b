#ifndef KELP_INPUT_QUILL_TOOL_BATCH_PROGRESS_LINE_HPP
#define KELP_INPUT_QUILL_TOOL_BATCH_PROGRESS_LINE_HPP

#include <chrono>
#include <cstddef>
#include <ostream>

namespace kelp::input::quill::tool {

/// A line on a terminal that shows the progress, and that is overwritten again and again. It is
/// shown when the work takes longer than a second, and then at most ten times in a second.
class ProgressLine {
 public:
  using Time = std::chrono::steady_clock::time_point;

  /// Work on `files` files begins at `start`.
  ProgressLine(std::ostream& stream, std::size_t files, Time start)
      : stream_(stream), files_(files), next_(start + std::chrono::seconds(1)) {}

  /// Shows that so many files are done at the time `now`, unless it is too early for that.
  void show(std::size_t done, Time now);

  /// Removes the line, before anything else is written.
  void clear();

  bool was_shown() const { return was_shown_; }

 private:
  std::ostream& stream_;
  std::size_t files_;
  Time next_;
  bool is_shown_ = false;
  bool was_shown_ = false;
};

}  // namespace kelp::input::quill::tool

#endif  // KELP_INPUT_QUILL_TOOL_BATCH_PROGRESS_LINE_HPP
