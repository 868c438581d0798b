#ifndef KELP_INPUT_QUILL_TOOL_SESSION_OUTPUT_HPP
#define KELP_INPUT_QUILL_TOOL_SESSION_OUTPUT_HPP

#include <sys/stat.h>

#include <optional>
#include <ostream>
#include <string>
#include <string_view>

#include "quill-inp/process/terminal.hpp"

namespace kelp::input::quill::tool {

/// Where data goes: standard output, or a stream instead of it. The caller writes all data and then
/// checks once whether that failed.
class Output {
 public:
  /// `file` is the descriptor that the stream is connected to, if it is connected to one.
  Output(std::ostream& stream, std::optional<int> file) : stream_(stream), file_(file) {}

  /// The descriptor, if there is one.
  std::optional<int> file() const { return file_; }

  /// The stream itself, for a protocol that needs each piece passed on at once.
  std::ostream& stream() {
    has_written_ = true;
    return stream_;
  }

  /// Writes data byte for byte; on a terminal, escapes bytes that would control it.
  void write(std::string_view data);

  /// Writes text for people. Except for colours, it must not contain anything that would control a
  /// terminal.
  void write_shown(std::string_view text);

  /// Begins a text that an empty line separates from the text before it. For the first one, no line
  /// is written, but has_begun_part() tells that there may be a text before it, in another Output.
  void begin_part();
  bool has_begun_part() const { return has_begun_part_; }

  /// Writes a diff: for people on a terminal or in colour, if `mode` asks for that, and byte for
  /// byte otherwise, so that it can be applied.
  void write_diff(std::string_view diff, ColorMode mode);

  /// Returns whether data goes into the regular file with this state. Anything else, such as a
  /// terminal or /dev/null, may be read and written at the same time.
  bool goes_into(const struct stat& file) const;

  /// Returns whether data goes into any regular file.
  bool goes_into_regular_file() const;

  /// Returns why some data could not be written, or nothing if all of it was.
  std::optional<std::string> find_failure();

 private:
  void remember_failure();

  std::ostream& stream_;
  std::optional<int> file_;
  bool has_written_ = false;
  bool has_begun_part_ = false;
  int error_ = 0;  // of the first write that failed
};

}  // namespace kelp::input::quill::tool

#endif  // KELP_INPUT_QUILL_TOOL_SESSION_OUTPUT_HPP
