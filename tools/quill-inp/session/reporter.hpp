#ifndef KELP_INPUT_QUILL_TOOL_SESSION_REPORTER_HPP
#define KELP_INPUT_QUILL_TOOL_SESSION_REPORTER_HPP

#include <cstddef>
#include <optional>
#include <ostream>
#include <string>
#include <string_view>

#include "kelp/input/quill/reader.hpp"

namespace kelp::input::quill::tool {

/// Where something was found: a file, by the name to show for it, and a line if it is about one.
struct Place {
  std::string name = {};
  std::optional<std::size_t> line = std::nullopt;
};

/// Writes diagnostics, "path:line: warning: message", one line each. What a terminal would obey is
/// escaped. The stream is not checked: where nothing can be said, the exit code still can be.
class Reporter {
 public:
  /// A quiet reporter passes over warnings and notes.
  Reporter(std::ostream& stream, bool is_quiet, bool is_colored);

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

/// Reports every warning of a result as one about the file `name`.
void report_warnings(Reporter& reporter, const std::string& name, const ParseResult& result);

}  // namespace kelp::input::quill::tool

#endif  // KELP_INPUT_QUILL_TOOL_SESSION_REPORTER_HPP
