#ifndef KELP_INPUT_QUILL_TOOL_COMMAND_LINE_POST_OPTIONS_HPP
#define KELP_INPUT_QUILL_TOOL_COMMAND_LINE_POST_OPTIONS_HPP

#include <vector>

#include "kelp/input/quill/document.hpp"

namespace CLI {
class App;
}  // namespace CLI

namespace kelp::input::quill::tool {

/// Adds the options for post-processing lines to a verb: --bond, --angle, --dihedral, --atom,
/// --scan, --post and --raw.
void add_post_options(CLI::App& verb);

/// Returns the lines that they ask for, in the order of the command line.
/// Throws UsageError for bad values.
std::vector<PostCommand> read_post_commands(const CLI::App& verb);

}  // namespace kelp::input::quill::tool

#endif  // KELP_INPUT_QUILL_TOOL_COMMAND_LINE_POST_OPTIONS_HPP
