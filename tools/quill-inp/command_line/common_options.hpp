#ifndef KELP_INPUT_QUILL_TOOL_COMMAND_LINE_COMMON_OPTIONS_HPP
#define KELP_INPUT_QUILL_TOOL_COMMAND_LINE_COMMON_OPTIONS_HPP

#include "quill-inp/session/session.hpp"

namespace CLI {
class App;
}  // namespace CLI

namespace kelp::input::quill::tool {

/// Adds the options that every verb has, after its own.
void add_common_options(CLI::App& verb);

/// Reads the options that every verb has, see CommonOptions. Throws UsageError for bad values.
CommonOptions read_common_options(const CLI::App& verb);

}  // namespace kelp::input::quill::tool

#endif  // KELP_INPUT_QUILL_TOOL_COMMAND_LINE_COMMON_OPTIONS_HPP
