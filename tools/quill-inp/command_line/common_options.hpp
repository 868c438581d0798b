#ifndef KELP_INPUT_QUILL_TOOL_COMMAND_LINE_COMMON_OPTIONS_HPP
#define KELP_INPUT_QUILL_TOOL_COMMAND_LINE_COMMON_OPTIONS_HPP

#include "quill-inp/command_line/arguments.hpp"
#include "quill-inp/session/session.hpp"

namespace kelp::input::quill::tool {

/// Adds the options that every verb has, after its own.
void add_common_options(CLI::App& verb);

/// Reads the options that every verb has, see CommonOptions. Throws UsageError for bad values.
CommonOptions read_common_options(const CLI::App& verb);

/// Returns the options for messages, for arguments that cannot be parsed: -q, --quiet and --color
/// before "--", and of several --color the last one with a valid value. Values of other options
/// that look like these options count, too.
CommonOptions find_message_options(const std::vector<std::string>& arguments);

}  // namespace kelp::input::quill::tool

#endif  // KELP_INPUT_QUILL_TOOL_COMMAND_LINE_COMMON_OPTIONS_HPP
