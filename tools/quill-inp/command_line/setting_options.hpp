#ifndef KELP_INPUT_QUILL_TOOL_COMMAND_LINE_SETTING_OPTIONS_HPP
#define KELP_INPUT_QUILL_TOOL_COMMAND_LINE_SETTING_OPTIONS_HPP

#include <vector>

#include "quill-inp/command_line/arguments.hpp"
#include "quill-inp/keys/key.hpp"

namespace kelp::input::quill::tool {

/// Adds the arguments KEY=VALUE and the option --flag to a verb, after its argument FILE.
void add_setting_options(CLI::App& verb);

/// Returns the settings in the order of the command line. Throws UsageError for bad ones, and for a
/// word without "=", which may be a second file name or a setting with a forgotten "=". Neither
/// should be written into the input.
std::vector<Setting> read_settings(const CLI::App& verb);

}  // namespace kelp::input::quill::tool

#endif  // KELP_INPUT_QUILL_TOOL_COMMAND_LINE_SETTING_OPTIONS_HPP
