#ifndef KELP_INPUT_QUILL_READER_POST_LINE_HPP
#define KELP_INPUT_QUILL_READER_POST_LINE_HPP

#include <string_view>

#include "kelp/input/quill/document.hpp"

namespace kelp::input::quill {

/// Reads one post-processing line into a command that was just made, and returns whether the line
/// gives one. A line with a known keyword and the number of tokens that goes with it, but with a
/// malformed number, does not, nor does a blank line; the content of `command` then has no meaning.
/// Every other line gives a command, of kind `Raw` when it has no other form.
bool parse_post_line(std::string_view line, PostCommand& command);

}  // namespace kelp::input::quill

#endif  // KELP_INPUT_QUILL_READER_POST_LINE_HPP
