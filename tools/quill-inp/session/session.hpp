#ifndef KELP_INPUT_QUILL_TOOL_SESSION_SESSION_HPP
#define KELP_INPUT_QUILL_TOOL_SESSION_SESSION_HPP

#include <cstdint>
#include <istream>
#include <optional>
#include <ostream>
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

  /// Whether standard input was taken already.
  bool has_taken_standard_input() const { return has_taken_input_; }

  /// Takes standard input from a session, for a file that is not the first to ask for it.
  void forbid_standard_input() { has_taken_input_ = true; }

  /// Note that the current file was changed, return whether it was, and forget it.
  void note_change() { has_changed_ = true; }
  bool has_noted_change() const { return has_changed_; }
  void forget_change() { has_changed_ = false; }

  /// Returns a session for one file of this call, which shares nothing with this one that changes:
  /// it writes messages to `messages` and data to `out`, in the form in which this one would.
  Session for_one_file(std::ostream& messages, Output& out) const;

  /// Whether somebody sees messages as they are written: on a terminal that can erase a line, and
  /// not with --quiet.
  bool is_watched() const;

  /// Reports trouble with the file that `argument` names, with the line if it is about one.
  void report(const std::string& argument, const Trouble& trouble);

 private:
  Session(const Session& whole, std::ostream& messages, Output& out);

  Input in_;
  std::optional<int> messages_file_;
  Output& out_;
  CommonOptions options_;
  Reporter reporter_;
  bool has_taken_input_ = false;
  bool has_changed_ = false;
};

}  // namespace kelp::input::quill::tool

#endif  // KELP_INPUT_QUILL_TOOL_SESSION_SESSION_HPP
