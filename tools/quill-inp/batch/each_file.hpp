#ifndef KELP_INPUT_QUILL_TOOL_BATCH_EACH_FILE_HPP
#define KELP_INPUT_QUILL_TOOL_BATCH_EACH_FILE_HPP

// What a verb does for each of its files.
//
//   const ChosenFiles files = choose_files(session, read_file_choice(app, words));
//   return for_each_file(session, files, read_batch_options(app),
//                        [&](Session& one, const std::string& file) { return show(one, file); });

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

#include "quill-inp/batch/file_choice.hpp"
#include "quill-inp/process/exit_code.hpp"
#include "quill-inp/session/session.hpp"

namespace kelp::input::quill::tool {

/// Carries `action` out for a file and returns its exit code. If it throws, that is reported with
/// the file's name, and the code is ExitCode::Trouble. There are two exceptions: a ReportedTrouble
/// was reported already, and a UsageError, which is not about a file, is thrown again.
ExitCode for_file(Session& session, const std::string& argument,
                  const std::function<ExitCode()>& action);

/// What a verb does for one file. It writes only through the session that it is given. It is called
/// for several files at once, on several threads, when the user wants that.
using FileAction = std::function<ExitCode(Session&, const std::string&)>;

/// The same, with the number of the file among all, from 0.
using NumberedAction = std::function<ExitCode(Session&, std::size_t)>;

/// How to go through many files.
struct BatchOptions {
  unsigned threads = 1;
  const char* counted = nullptr;  // what a last line says of changed files; nothing: no such line
};

/// Carries `action` out for every file, as for_file() does, even if it fails for files before it,
/// and returns the worst code, that of the choice included. What is written comes in the order of
/// the files, and is the same for every number of threads. If standard output goes into one of the
/// files, that is reported and no file is processed.
///
/// On a terminal, a line on standard error shows the progress if the work takes longer than a
/// second, and the counts at the end.
ExitCode for_each_file(Session& session, const ChosenFiles& files, const BatchOptions& options,
                       const FileAction& action);
ExitCode for_each_number(Session& session, const ChosenFiles& files, const BatchOptions& options,
                         const NumberedAction& action);

}  // namespace kelp::input::quill::tool

#endif  // KELP_INPUT_QUILL_TOOL_BATCH_EACH_FILE_HPP
