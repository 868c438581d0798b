#ifndef KELP_INPUT_QUILL_TOOL_EDITING_HEADER_TEXT_LOSS_HPP
#define KELP_INPUT_QUILL_TOOL_EDITING_HEADER_TEXT_LOSS_HPP

#include <string_view>

#include "kelp/input/quill/document.hpp"

namespace kelp::input::quill::tool {

/// Returns whether a header line says more than the command that it was read as, so that a line
/// made of the command would lose something: text behind a closing parenthesis, or a parameter
/// without a name, which the reader passes over. Blanks, quotes and commas do not count: laying a
/// line out anew may change them.
bool says_more_than(std::string_view line, const HeaderCommand& command);

}  // namespace kelp::input::quill::tool

#endif  // KELP_INPUT_QUILL_TOOL_EDITING_HEADER_TEXT_LOSS_HPP
