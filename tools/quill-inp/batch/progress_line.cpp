#include "quill-inp/batch/progress_line.hpp"

#include <string>

#include "quill-inp/batch/tally.hpp"

namespace kelp::input::quill::tool {

namespace {

constexpr std::chrono::milliseconds time_between{100};
constexpr const char* clear_line = "\r\x1b[K";

}  // namespace

void ProgressLine::show(std::size_t done, Time now) {
  if (now < next_) return;
  next_ = now + time_between;
  is_shown_ = true;
  was_shown_ = true;
  stream_ << clear_line + grouped(done) + " of " + grouped(files_) + " files" << std::flush;
}

void ProgressLine::clear() {
  if (is_shown_) stream_ << clear_line << std::flush;
  is_shown_ = false;
}

}  // namespace kelp::input::quill::tool
