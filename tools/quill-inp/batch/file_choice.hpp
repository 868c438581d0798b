#ifndef KELP_INPUT_QUILL_TOOL_BATCH_FILE_CHOICE_HPP
#define KELP_INPUT_QUILL_TOOL_BATCH_FILE_CHOICE_HPP

#include <optional>
#include <string>
#include <vector>

#include "quill-inp/process/exit_code.hpp"
#include "quill-inp/session/session.hpp"

namespace kelp::input::quill::tool {

/// Which files the user wants a verb to work on.
struct FileChoice {
  std::vector<std::string> arguments = {};         // files, and folders if `is_recursive`
  bool is_recursive = false;                       // takes the files in folders
  std::vector<std::string> patterns = {};          // for these files; empty: "*.qin"
  std::optional<std::string> list = std::nullopt;  // a file with more files, one on each line
  bool list_has_nul_ends = false;                  // a NUL ends each name in it, and not a line end
  bool takes_each_once = false;                    // skips other names of the same path
};

/// The files, in the order in which they are processed: those of the list, then those of the
/// arguments. `code` is Trouble when a folder or the list could not be read, and No when a folder
/// has no file that matches; both are reported.
struct ChosenFiles {
  std::vector<std::string> files = {};
  ExitCode code = ExitCode::Done;
  /// Whether the user asked for one file by its name, and so knows which file an answer is about.
  bool is_one_by_name = false;
};

/// Returns the files of a choice. If the list cannot be read, that is reported, and there are none.
ChosenFiles choose_files(Session& session, const FileChoice& choice);

}  // namespace kelp::input::quill::tool

#endif  // KELP_INPUT_QUILL_TOOL_BATCH_FILE_CHOICE_HPP
