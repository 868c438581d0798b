#ifndef KELP_INPUT_QUILL_TOOL_COMMAND_LINE_SETTING_OPTIONS_HPP
#define KELP_INPUT_QUILL_TOOL_COMMAND_LINE_SETTING_OPTIONS_HPP

#include <string>
#include <vector>

#include "quill-inp/command_line/arguments.hpp"
#include "quill-inp/keys/key.hpp"

namespace kelp::input::quill::tool {

/// Adds the arguments FILE and KEY=VALUE and the option --flag to a verb.
void add_setting_options(CLI::App& verb);

/// What the words of such a verb are.
struct FilesAndSettings {
  std::vector<std::string> files = {};
  std::vector<Setting> settings = {};
};

/// Returns the files, and the settings in the order of the command line. The first word is a file,
/// unless other options name files and it is a setting. Of the others, a word with a "=" is a
/// setting, and a word without one is a file, which must exist: the word may be a setting whose "="
/// was forgotten. Throws UsageError for such a word, and for bad settings.
FilesAndSettings read_files_and_settings(const CLI::App& verb);

/// Returns whether only what already exists is to be set.
bool sets_only_existing(const CLI::App& verb);

}  // namespace kelp::input::quill::tool

#endif  // KELP_INPUT_QUILL_TOOL_COMMAND_LINE_SETTING_OPTIONS_HPP
