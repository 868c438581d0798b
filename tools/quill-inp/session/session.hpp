#ifndef KELP_INPUT_QUILL_TOOL_SESSION_SESSION_HPP
#define KELP_INPUT_QUILL_TOOL_SESSION_SESSION_HPP

#include <cstdint>
#include <istream>
#include <optional>
#include <string>

#include "quill-inp/process/standard_streams.hpp"
#include "quill-inp/process/terminal.hpp"
#include "quill-inp/process/trouble.hpp"
#include "quill-inp/session/output.hpp"
#include "quill-inp/session/reporter.hpp"

namespace kelp::input::quill::tool {

/// The options that every verb has.
struct CommonOptions {
  ColorMode color = ColorMode::Auto;
  bool is_quiet = false;
  std::uint64_t max_size = std::uint64_t{256} << 20U;
  std::string stdin_filename = "<stdin>";
};

/// Standard input, and the descriptor that it is connected to, if it is connected to one.
struct Input {
  std::istream& stream;
  std::optional<int> file;
};

/// One call of the program: its streams and its common options.
class Session {
 public:
  Session(const StandardStreams& streams, Output& out, CommonOptions options);

  const CommonOptions& options() const { return options_; }
  Output& output() { return out_; }
  Reporter& reporter() { return reporter_; }

  /// Returns the name to show for a file argument: "-" is standard input.
  std::string shown_name(const std::string& argument) const;

  /// The descriptor of standard input, if it is connected to a file.
  std::optional<int> input_file() const { return in_.file; }

  /// Returns standard input. Throws Trouble the second time, since there is nothing left to read.
  Input take_standard_input();

  /// Reports trouble with the file that `argument` names, with the line if it is about one.
  void report(const std::string& argument, const Trouble& trouble);

 private:
  Input in_;
  Output& out_;
  CommonOptions options_;
  Reporter reporter_;
  bool has_taken_input_ = false;
};

}  // namespace kelp::input::quill::tool

#endif  // KELP_INPUT_QUILL_TOOL_SESSION_SESSION_HPP
