#ifndef KELP_INPUT_QUILL_TOOL_SUMMARY_LINES_TEXT_HPP
#define KELP_INPUT_QUILL_TOOL_SUMMARY_LINES_TEXT_HPP

#include "kelp/input/quill/lossless/read_text.hpp"
#include "quill-inp/summary/summary.hpp"

namespace kelp::input::quill::tool {

/// Writes every line: its number, what the reader made of it, and the line itself. A line that the
/// reader dropped has the colour of warnings. Bytes that would control a terminal are escaped.
void write_lines_text(const lossless::ReadText& read, bool is_colored, const TextSink& sink);

}  // namespace kelp::input::quill::tool

#endif  // KELP_INPUT_QUILL_TOOL_SUMMARY_LINES_TEXT_HPP
