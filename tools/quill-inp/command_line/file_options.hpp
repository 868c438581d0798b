#ifndef KELP_INPUT_QUILL_TOOL_COMMAND_LINE_FILE_OPTIONS_HPP
#define KELP_INPUT_QUILL_TOOL_COMMAND_LINE_FILE_OPTIONS_HPP

// The files of a verb that takes any number of them, and how to go through them.

#include <string>
#include <vector>

#include "quill-inp/batch/each_file.hpp"
#include "quill-inp/batch/file_choice.hpp"
#include "quill-inp/command_line/arguments.hpp"

namespace kelp::input::quill::tool {

/// Adds --recursive, --glob, --files-from, --null and --jobs to a verb, in a separate group.
void add_file_options(CLI::App& verb);

/// Adds --jobs alone.
void add_jobs_option(CLI::App& verb);

/// Returns whether --files-from names a file with the names of files, so that none are needed on
/// the command line.
bool has_file_list(const CLI::App& verb);

/// Returns whether files may come from something other than the words: --files-from or --recursive.
bool has_other_files(const CLI::App& verb);

/// Returns the choice of files that these options make, with the files and folders that are named
/// as arguments. Throws UsageError for options that need another one, and for no file at all.
FileChoice read_file_choice(const CLI::App& verb, std::vector<std::string> arguments);

/// Reads --jobs. Throws UsageError for a text that is not a number.
BatchOptions read_batch_options(const CLI::App& verb);

}  // namespace kelp::input::quill::tool

#endif  // KELP_INPUT_QUILL_TOOL_COMMAND_LINE_FILE_OPTIONS_HPP
