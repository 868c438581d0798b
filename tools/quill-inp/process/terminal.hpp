#ifndef KELP_INPUT_QUILL_TOOL_PROCESS_TERMINAL_HPP
#define KELP_INPUT_QUILL_TOOL_PROCESS_TERMINAL_HPP

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kelp::input::quill::tool {

/// When to use colour.
enum class ColorMode {
  Auto,    // on a terminal, unless the environment asks for none
  Always,  // whatever the environment says
  Never,
};

/// Returns the mode with a name ("auto", "always" or "never"), or nothing for another name.
std::optional<ColorMode> find_color_mode(std::string_view name);

/// Returns these names.
std::vector<std::string> color_mode_names();

/// Returns whether an open file is a terminal; false without a file.
bool is_terminal(std::optional<int> file);

/// Returns whether an open file is a terminal on which a line can be written over again.
bool can_erase_lines(std::optional<int> file);

/// Returns whether to colour the text for an open file, or for none. In the mode Auto, text is
/// coloured only for a terminal that is not "dumb", and only if NO_COLOR is not set or empty.
bool wants_color(ColorMode mode, std::optional<int> file);

}  // namespace kelp::input::quill::tool

#endif  // KELP_INPUT_QUILL_TOOL_PROCESS_TERMINAL_HPP
