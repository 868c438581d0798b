#ifndef KELP_INPUT_QUILL_TOOL_COMMAND_LINE_SETTING_OPTIONS_HPP
#define KELP_INPUT_QUILL_TOOL_COMMAND_LINE_SETTING_OPTIONS_HPP

#include <vector>

#include "quill-inp/command_line/arguments.hpp"
#include "quill-inp/keys/key.hpp"

namespace kelp::input::quill::tool {

/// Adds the arguments KEY=VALUE and the option --flag to a verb, after the file that it is for.
void add_setting_options(CLI::App& verb);

/// Returns the settings that they ask for, in the order of the command line.
/// Throws UsageError for bad ones, and for a word without "=": a second file name or a forgotten
/// "=" would be written into the input.
std::vector<Setting> read_settings(const CLI::App& verb);

}  // namespace kelp::input::quill::tool

#endif  // KELP_INPUT_QUILL_TOOL_COMMAND_LINE_SETTING_OPTIONS_HPP
