#ifndef KELP_INPUT_QUILL_TOOL_COMMAND_LINE_MESSAGE_OPTIONS_HPP
#define KELP_INPUT_QUILL_TOOL_COMMAND_LINE_MESSAGE_OPTIONS_HPP

#include <string>
#include <vector>

#include "quill-inp/process/terminal.hpp"

namespace kelp::input::quill::tool {

/// How messages are wanted.
struct MessageOptions {
  ColorMode color = ColorMode::Auto;
  bool is_quiet = false;
};

/// Returns what arguments that cannot be parsed say about messages: -q, --quiet and --color before
/// "--", the last --color with a value that is one. Words are not told from the values of other
/// options.
MessageOptions find_message_options(const std::vector<std::string>& arguments);

}  // namespace kelp::input::quill::tool

#endif  // KELP_INPUT_QUILL_TOOL_COMMAND_LINE_MESSAGE_OPTIONS_HPP
