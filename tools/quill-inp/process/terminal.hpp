#ifndef KELP_INPUT_QUILL_TOOL_PROCESS_TERMINAL_HPP
#define KELP_INPUT_QUILL_TOOL_PROCESS_TERMINAL_HPP

#include <optional>
#include <ostream>
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

/// Returns the mode of a name, "auto", "always" or "never", or nothing for another name.
std::optional<ColorMode> find_color_mode(std::string_view name);

/// Returns these names.
std::vector<std::string> color_mode_names();

/// Returns whether `stream` is the process's standard output or standard error and a terminal shows
/// it. Any other stream is none.
bool is_terminal(const std::ostream& stream);

/// Returns whether to colour what goes to `stream`. NO_COLOR set to anything but the empty text,
/// and a terminal that calls itself dumb, speak against it in the mode Auto.
bool wants_color(ColorMode mode, const std::ostream& stream);

}  // namespace kelp::input::quill::tool

#endif  // KELP_INPUT_QUILL_TOOL_PROCESS_TERMINAL_HPP
