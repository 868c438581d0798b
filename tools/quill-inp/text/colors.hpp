#ifndef KELP_INPUT_QUILL_TOOL_TEXT_COLORS_HPP
#define KELP_INPUT_QUILL_TOOL_TEXT_COLORS_HPP

#include <string>
#include <string_view>

namespace kelp::input::quill::tool {

// The colours of texts for people, as the codes that a terminal understands. The same meaning has
// the same colour in all verbs.
inline constexpr std::string_view error_color = "\x1b[1;31m";
inline constexpr std::string_view warning_color = "\x1b[1;35m";
inline constexpr std::string_view note_color = "\x1b[1;36m";
inline constexpr std::string_view removed_color = "\x1b[31m";
inline constexpr std::string_view added_color = "\x1b[32m";
inline constexpr std::string_view label_color = "\x1b[36m";
inline constexpr std::string_view name_color = "\x1b[1m";
inline constexpr std::string_view end_of_color = "\x1b[m";

/// Returns the text in a colour, or as it is when colour is not wanted.
inline std::string colored(std::string_view text, std::string_view color, bool is_wanted) {
  if (!is_wanted) return std::string(text);
  return std::string(color) + std::string(text) + std::string(end_of_color);
}

}  // namespace kelp::input::quill::tool

#endif  // KELP_INPUT_QUILL_TOOL_TEXT_COLORS_HPP
