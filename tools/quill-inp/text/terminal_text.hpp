#ifndef KELP_INPUT_QUILL_TOOL_TEXT_TERMINAL_TEXT_HPP
#define KELP_INPUT_QUILL_TOOL_TEXT_TERMINAL_TEXT_HPP

// Showing bytes of files and file names to a person.
//
//   shown_on_one_line("a\x1b[2Jb");  // a\x1b[2Jb, as eight visible characters
//
// Control characters make a terminal clear the screen, move the cursor, change its title, or show
// the text after a directional override in another order. The author of an input must not be able
// to do that, so such bytes are shown as escapes. So are characters that cannot be seen or look
// like a blank: the reader takes them for text. All other bytes are shown unchanged, even a
// backslash: the result is for people, and cannot be turned back into the bytes.

#include <string>
#include <string_view>

namespace kelp::input::quill::tool {

/// Returns `text` for one line: control characters of ASCII (line ends and tabs among them) and of
/// Unicode, characters that change the direction of text, that have no form, or that look like a
/// blank, and bytes that are not UTF-8 become "\n", "\r", "\t", "\x1b", "\u202e" or, above U+FFFF,
/// a surrogate pair as in JSON.
std::string shown_on_one_line(std::string_view text);

/// Returns `text` in the same way, but keeps "\n", "\r\n" and tabs.
std::string shown_as_lines(std::string_view text);

}  // namespace kelp::input::quill::tool

#endif  // KELP_INPUT_QUILL_TOOL_TEXT_TERMINAL_TEXT_HPP
