#ifndef KELP_INPUT_QUILL_TESTS_TOOLS_QUILL_INP_SUPPORT_PROGRAM_HPP
#define KELP_INPUT_QUILL_TESTS_TOOLS_QUILL_INP_SUPPORT_PROGRAM_HPP

// Running the built program as a user does: as a process of its own, with its own descriptors,
// folder, environment and limits.

#include <cstddef>
#include <map>
#include <optional>
#include <ostream>
#include <string>
#include <vector>

namespace kelp::input::quill::tool {

/// What to connect a standard stream of the program to.
enum class Connection {
  Captured,    // standard input: the text of the request; the others: the result of the run
  Closed,      // nothing: the descriptor is not open
  BrokenPipe,  // a pipe that nobody reads any more
  FullDevice,  // /dev/full
  Terminal,    // a terminal of its own, whose output is captured
};

/// How to run the program.
struct Request {
  std::vector<std::string> arguments = {};
  std::string folder = ".";
  std::string input = {};
  Connection in = Connection::Captured;
  Connection out = Connection::Captured;
  Connection err = Connection::Captured;
  std::map<std::string, std::string> environment = {};
  std::optional<unsigned> umask = std::nullopt;
  std::optional<std::size_t> largest_file = std::nullopt;  // as ulimit -f, but in bytes
  std::vector<int> ignored_signals = {};
  bool without_privileges = false;  // permission bits and owners count, even for the superuser
};

/// The result of a run: the exit code, or the signal that ended it, and what it wrote.
struct Outcome {
  std::optional<int> code = std::nullopt;
  std::optional<int> signal = std::nullopt;
  std::string out = {};
  std::string err = {};
};

bool operator==(const Outcome& left, const Outcome& right);
void PrintTo(const Outcome& outcome, std::ostream* stream);

/// Returns the outcome of a run that ended with this exit code and wrote these texts.
Outcome ended(int code, std::string out, std::string err);

Outcome run_program(const Request& request);

/// Runs the program in a folder with these arguments.
Outcome run_in(const std::string& folder, const std::vector<std::string>& arguments,
               const std::string& input = {});

/// Runs `command` with the shell in a folder, the program being found by its name, and returns its
/// outcome with both streams in `out`.
Outcome run_shell(const std::string& folder, const std::string& command);

/// Returns the path of the program.
std::string program_path();

}  // namespace kelp::input::quill::tool

#endif  // KELP_INPUT_QUILL_TESTS_TOOLS_QUILL_INP_SUPPORT_PROGRAM_HPP
