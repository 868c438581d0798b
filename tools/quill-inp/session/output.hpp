#ifndef KELP_INPUT_QUILL_TOOL_SESSION_OUTPUT_HPP
#define KELP_INPUT_QUILL_TOOL_SESSION_OUTPUT_HPP

#include <sys/stat.h>

#include <optional>
#include <ostream>
#include <string>
#include <string_view>

#include "quill-inp/process/terminal.hpp"

namespace kelp::input::quill::tool {

/// Where data goes: standard output, or a stream in its place. Whether what was written
/// arrived is asked once, when all of it was written.
class Output {
 public:
  /// `file` is the descriptor that the stream is connected to, if it is connected to one.
  Output(std::ostream& stream, std::optional<int> file) : stream_(stream), file_(file) {}

  /// Writes data byte for byte; to a terminal, which would obey some bytes, with those escaped.
  void write(std::string_view data);

  /// Writes text that is for a person and in which nothing is left that a terminal would obey, but
  /// for colours.
  void write_shown(std::string_view text);

  /// Writes a difference, in colour where that is wanted.
  void write_diff(std::string_view diff, ColorMode mode);

  /// Returns whether data goes into the regular file of this state. Anything else, a terminal or
  /// /dev/null, may be read and written at once.
  bool goes_into(const struct stat& file) const;

  /// Returns why not everything arrived that was written, or nothing when it did.
  std::optional<std::string> find_failure();

 private:
  void remember_failure();

  std::ostream& stream_;
  std::optional<int> file_;
  bool has_written_ = false;
  int error_ = 0;  // of the first write that failed
};

}  // namespace kelp::input::quill::tool

#endif  // KELP_INPUT_QUILL_TOOL_SESSION_OUTPUT_HPP
