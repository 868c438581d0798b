#ifndef KELP_INPUT_QUILL_READER_POST_LINE_HPP
#define KELP_INPUT_QUILL_READER_POST_LINE_HPP

#include <optional>
#include <string_view>

#include "kelp/input/quill/document.hpp"

namespace kelp::input::quill {

/// Reads one post-processing line. A line with a known keyword and the number of tokens that goes
/// with it, but with a malformed number, gives nothing, and so does a blank line; every other line
/// gives a command, of kind `Raw` when it has no other form.
std::optional<PostCommand> parse_post_line(std::string_view line);

/// The same into a command that was just made; returns whether the line gives one, and if not,
/// leaves something in it that is of no use. Spares a reader of many lines two moves for each.
bool parse_post_line(std::string_view line, PostCommand& command);

}  // namespace kelp::input::quill

#endif  // KELP_INPUT_QUILL_READER_POST_LINE_HPP
