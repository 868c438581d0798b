#ifndef KELP_INPUT_QUILL_TESTS_TOOLS_QUILL_INP_SUPPORT_FAULTY_WRITE_HPP
#define KELP_INPUT_QUILL_TESTS_TOOLS_QUILL_INP_SUPPORT_FAULTY_WRITE_HPP

#include <sys/stat.h>

#include <cstddef>
#include <string>
#include <vector>

#include "support/temporary_folder.hpp"
#include "tools/quill-inp/support/files.hpp"
#include "tools/quill-inp/support/program.hpp"

namespace kelp::input::quill::tool {

/// The permission bits of the file that is written, and the name of its backup.
inline constexpr unsigned mode = 0640;
inline constexpr const char* backup_name = "a.qin.bak";

/// A file in a separate folder, and a program that is told to change it. One of its system calls
/// can be made to fail.
class FaultyWrite {
 public:
  explicit FaultyWrite(bool keeps_backup = false);

  Request& request() { return request_; }
  std::string path() const { return path_; }
  std::string content() const { return content_of(path_); }
  std::string backup() const { return content_of(folder_.path(backup_name)); }
  unsigned mode_of_file() const { return mode_of(path_); }
  struct stat state() const {
    return state_of(path_);
  }
  void write_other(const std::string& name) const { folder_.write(name, "#other"); }

  Outcome run() const { return run_program(request_); }

  /// Runs the program with this fault at the call with this number, counted from 1.
  Outcome run_with_fault(std::size_t call, const std::string& fault);

  /// The same call once more, without a fault.
  Outcome run_undisturbed();

  /// The calls that the write makes when all goes well.
  std::vector<std::string> list_calls(const Outcome& expected = ended(0, "", ""));

  /// The calls that have flags, with these.
  std::vector<std::string> list_flags();

  /// The names in the folder, without that of the file.
  std::vector<std::string> others() const;

  /// The expected names after a call that could clean up: a backup next to the new text, if it was
  /// asked for, and nothing next to the old text.
  std::vector<std::string> others_wanted() const;

  /// Whether no file in the folder gives anybody more rights than the target does.
  bool nothing_is_wider() const;

 private:
  /// The lines that a run leaves in the file that an environment variable names.
  std::vector<std::string> list(const std::string& variable, const Outcome& expected);

  bool keeps_backup_;
  TemporaryFolder folder_;
  std::string path_;
  Request request_;
};

/// The calls of a write that nothing disturbs.
std::vector<std::string> calls_of_a_write(bool keeps_backup = false);

/// How many calls come before the first call of this name.
std::size_t position(const std::vector<std::string>& calls, const std::string& name);

/// The number of the last call of this name, counted from 1.
std::size_t last_call(const std::vector<std::string>& calls, const std::string& name);

/// Whether a text is the one before the write or the one after it.
bool is_old_or_new(const std::string& content);

/// How the names of tests say whether a backup is kept.
const char* words_for(bool keeps_backup);

}  // namespace kelp::input::quill::tool

#endif  // KELP_INPUT_QUILL_TESTS_TOOLS_QUILL_INP_SUPPORT_FAULTY_WRITE_HPP
