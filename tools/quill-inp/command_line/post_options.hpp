#ifndef KELP_INPUT_QUILL_TOOL_COMMAND_LINE_POST_OPTIONS_HPP
#define KELP_INPUT_QUILL_TOOL_COMMAND_LINE_POST_OPTIONS_HPP

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "kelp/input/quill/document.hpp"
#include "quill-inp/command_line/arguments.hpp"

namespace kelp::input::quill::tool {

/// Adds the options for post-processing lines to a verb: --bond, --angle, --dihedral, --atom,
/// --scan, --post and --raw.
void add_post_options(CLI::App& verb);

/// Returns the lines that these options ask for, in the order of the command line.
/// Throws UsageError for bad values.
std::vector<PostCommand> read_post_commands(const CLI::App& verb);

/// Returns the integer that `text` spells. Throws UsageError, with the name of the option, for any
/// other text.
std::int32_t parse_integer(const std::string& option, std::string_view text);

/// Returns the post-processing line for the value of an option. "--atom", "--bond", "--angle" and
/// "--dihedral" take atom numbers separated by commas. "--scan" takes two to four of them, a value
/// and a number of steps, separated by colons: "1,2:1.5:10". "--post" takes a path and "--raw" a
/// line of text. Throws UsageError for anything else.
PostCommand parse_post_argument(const std::string& option, const std::string& text);

}  // namespace kelp::input::quill::tool

#endif  // KELP_INPUT_QUILL_TOOL_COMMAND_LINE_POST_OPTIONS_HPP
