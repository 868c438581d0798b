#ifndef KELP_INPUT_QUILL_TOOL_SUMMARY_NUMBER_WORDS_HPP
#define KELP_INPUT_QUILL_TOOL_SUMMARY_NUMBER_WORDS_HPP

#include <string>

namespace kelp::input::quill::tool {

/// Returns the shortest decimal text that reads back as exactly this number.
std::string shortest_text(double number);

/// Returns the number with two significant digits, for telling its size.
std::string rounded_text(double number);

}  // namespace kelp::input::quill::tool

#endif  // KELP_INPUT_QUILL_TOOL_SUMMARY_NUMBER_WORDS_HPP
