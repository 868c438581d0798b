#ifndef KELP_INPUT_QUILL_TOOL_PROCESS_TROUBLE_HPP
#define KELP_INPUT_QUILL_TOOL_PROCESS_TROUBLE_HPP

#include <cstddef>
#include <exception>
#include <optional>
#include <stdexcept>
#include <string>

namespace kelp::input::quill::tool {

/// Why one file could not be processed. The other files of the call still are. The message does not
/// name the file; the caller that reports it adds the name. It may contain bytes that would control
/// a terminal. `line` is the number, counted from 1, of the line of the file that it is about, if
/// it is about one.
class Trouble : public std::runtime_error {
 public:
  explicit Trouble(const std::string& message, std::optional<std::size_t> line = std::nullopt)
      : std::runtime_error(message), line_(line) {}

  std::optional<std::size_t> line() const { return line_; }

 private:
  std::optional<std::size_t> line_;
};

/// The trouble with a folder where a file is needed.
class FolderTrouble : public Trouble {
 public:
  using Trouble::Trouble;
};

/// Ends the processing of a file because of trouble with another file, which was already reported.
class ReportedTrouble : public std::exception {};

/// Why a call cannot be carried out for any file: its arguments are wrong.
class UsageError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// Returns why an exception ended the processing of a file, or the call, in words for the user.
std::string explain(const std::exception& error);

/// Throws the Trouble of a failed system call. Its message is `action`, ": ", and the system's
/// message for `error`, an errno.
[[noreturn]] void throw_system_trouble(const std::string& action, int error);

/// Returns the system's message for an errno: "No such file or directory".
std::string system_message(int error);

}  // namespace kelp::input::quill::tool

#endif  // KELP_INPUT_QUILL_TOOL_PROCESS_TROUBLE_HPP
