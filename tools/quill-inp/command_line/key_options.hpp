#ifndef KELP_INPUT_QUILL_TOOL_COMMAND_LINE_KEY_OPTIONS_HPP
#define KELP_INPUT_QUILL_TOOL_COMMAND_LINE_KEY_OPTIONS_HPP

// The files and keys of a verb. A key looks like the name of a file, so the words alone are
// "FILE KEY...". With -k for every key, all words are files, and with --files-from all are keys.

#include <string>
#include <vector>

#include "quill-inp/command_line/arguments.hpp"

namespace kelp::input::quill::tool {

/// Adds the arguments FILE and KEY and the option --key to a verb. `help` says what a key is for.
void add_key_options(CLI::App& verb, const char* help);

/// What the words of such a verb are.
struct FilesAndKeys {
  std::vector<std::string> files = {};
  std::vector<std::string> keys = {};
};

/// Returns the files and keys. Throws UsageError when there is no key.
FilesAndKeys read_files_and_keys(const CLI::App& verb);

}  // namespace kelp::input::quill::tool

#endif  // KELP_INPUT_QUILL_TOOL_COMMAND_LINE_KEY_OPTIONS_HPP
