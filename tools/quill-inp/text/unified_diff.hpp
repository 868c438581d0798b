#ifndef KELP_INPUT_QUILL_TOOL_TEXT_UNIFIED_DIFF_HPP
#define KELP_INPUT_QUILL_TOOL_TEXT_UNIFIED_DIFF_HPP

#include <string>
#include <string_view>

namespace kelp::input::quill::tool {

/// Returns the difference between two texts of the file `name` in the unified format that `patch`
/// understands, with three lines of context around each change; equal texts give the empty text.
/// Lines are compared with their line ends and copied to the result byte for byte. In the two lines
/// with the name, characters that would control a terminal are escaped.
std::string unified_diff(std::string_view name, std::string_view old_text,
                         std::string_view new_text);

/// Returns such a difference for people, escaped as by shown_as_lines(). If lines replace lines
/// with other line ends, nobody could see the difference, so "\r\n" is shown as "\r" and a line
/// end.
std::string shown_diff(std::string_view diff);

/// Returns a difference in colour: removed lines red, added lines green, positions cyan.
std::string colored_diff(std::string_view diff);

/// Returns whether two different texts would be the same if "\r\n" and "\n" were.
bool differ_only_in_line_ends(std::string_view old_text, std::string_view new_text);

}  // namespace kelp::input::quill::tool

#endif  // KELP_INPUT_QUILL_TOOL_TEXT_UNIFIED_DIFF_HPP
