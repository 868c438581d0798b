#ifndef KELP_INPUT_QUILL_TOOL_SESSION_REPORTER_HPP
#define KELP_INPUT_QUILL_TOOL_SESSION_REPORTER_HPP

#include <cstddef>
#include <optional>
#include <ostream>
#include <string>
#include <string_view>

#include "kelp/input/quill/reader.hpp"

namespace kelp::input::quill::tool {

/// What a message is about: a file, by the name to show for it, and a line of it, if there is one.
struct Place {
  std::string name = {};
  std::optional<std::size_t> line = std::nullopt;
};

/// Writes messages, "path:line: warning: message", one line each. Bytes that would control a
/// terminal are escaped. Failures of the stream are ignored: the exit code still says what
/// happened.
class Reporter {
 public:
  /// A quiet reporter writes no warnings and notes.
  Reporter(std::ostream& stream, bool is_quiet, bool is_colored);

  /// The stream that messages go to.
  std::ostream& stream() { return stream_; }

  bool is_colored() const { return is_colored_; }

  /// Writes messages that another reporter of the same form has made.
  void write(std::string_view messages);

  void error(const Place& place, std::string_view message);
  void warning(const Place& place, std::string_view message);
  void note(const Place& place, std::string_view message);

 private:
  void write(const Place& place, std::string_view severity, std::string_view color,
             std::string_view message);

  std::ostream& stream_;
  bool is_quiet_;
  bool is_colored_;
};

/// Reports every warning of a result as a warning about the file `name`.
void report_warnings(Reporter& reporter, const std::string& name, const ParseResult& result);

}  // namespace kelp::input::quill::tool

#endif  // KELP_INPUT_QUILL_TOOL_SESSION_REPORTER_HPP
