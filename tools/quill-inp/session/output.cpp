#include "quill-inp/session/output.hpp"

#include <unistd.h>

#include <cerrno>

#include "files/file_descriptor.hpp"
#include "quill-inp/process/trouble.hpp"
#include "quill-inp/text/terminal_text.hpp"
#include "quill-inp/text/unified_diff.hpp"

namespace kelp::input::quill::tool {

namespace {

/// Returns the error of closing an open file, or 0. On network file systems, a full disk may be
/// reported only then. Closing a copy of the descriptor is enough to see that.
int try_closing(int file) {
  const int copy = dup(file);
  return copy < 0 ? errno : lossless::FileDescriptor(copy).close();
}

}  // namespace

void Output::write(std::string_view data) {
  if (is_terminal(file_)) {
    write_shown(shown_as_lines(data));
  } else {
    write_shown(data);
  }
}

void Output::write_shown(std::string_view text) {
  has_written_ = has_written_ || !text.empty();
  errno = 0;
  stream_.write(text.data(), static_cast<std::streamsize>(text.size()));
  remember_failure();
}

void Output::begin_part() {
  has_begun_part_ = true;
  if (has_written_) write_shown("\n");
}

void Output::write_diff(std::string_view diff, ColorMode mode) {
  const bool is_colored = wants_color(mode, file_);
  if (!is_colored && !is_terminal(file_)) {
    write_shown(diff);
    return;
  }
  const std::string shown = shown_diff(diff);
  write_shown(is_colored ? colored_diff(shown) : shown);
}

bool Output::goes_into(const struct stat& file) const {
  struct stat state {};
  return file_ && S_ISREG(file.st_mode) && fstat(*file_, &state) == 0 &&
         state.st_dev == file.st_dev && state.st_ino == file.st_ino;
}

bool Output::goes_into_regular_file() const {
  struct stat state {};
  return file_ && fstat(*file_, &state) == 0 && S_ISREG(state.st_mode);
}

std::optional<std::string> Output::find_failure() {
  if (!has_written_) return std::nullopt;
  errno = 0;
  stream_.flush();
  remember_failure();
  if (stream_ && file_) error_ = try_closing(*file_);
  if (stream_ && error_ == 0) return std::nullopt;
  const std::string reason = error_ == 0 ? std::string() : ": " + system_message(error_);
  return "cannot write to standard output" + reason;
}

void Output::remember_failure() {
  if (!stream_ && error_ == 0) error_ = errno;
}

}  // namespace kelp::input::quill::tool
