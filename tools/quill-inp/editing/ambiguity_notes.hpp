#ifndef KELP_INPUT_QUILL_TOOL_EDITING_AMBIGUITY_NOTES_HPP
#define KELP_INPUT_QUILL_TOOL_EDITING_AMBIGUITY_NOTES_HPP

#include "quill-inp/keys/ambiguity.hpp"
#include "quill-inp/session/input_source.hpp"
#include "quill-inp/session/session.hpp"

namespace kelp::input::quill::tool {

/// Notes which other lines or parameters of an input a key fits, at the line that is used.
void note_ambiguity(Session& session, const ReadInput& input, const Ambiguity& ambiguity);

}  // namespace kelp::input::quill::tool

#endif  // KELP_INPUT_QUILL_TOOL_EDITING_AMBIGUITY_NOTES_HPP
