#ifndef KELP_INPUT_QUILL_TOOL_EDITING_CANONICAL_TEXT_HPP
#define KELP_INPUT_QUILL_TOOL_EDITING_CANONICAL_TEXT_HPP

#include <optional>
#include <string>

#include "quill-inp/editing/loss_policy.hpp"
#include "quill-inp/session/input_source.hpp"
#include "quill-inp/session/session.hpp"

namespace kelp::input::quill::tool {

/// Returns the canonical text of an input, with quotes around values that need them. Reports the
/// reader's warnings, numbers that change and what is lost. Returns nothing, after an error, when
/// the text loses what the policy does not allow.
std::optional<std::string> make_canonical_text(Session& session, const ReadInput& input,
                                               const LossPolicy& policy);

}  // namespace kelp::input::quill::tool

#endif  // KELP_INPUT_QUILL_TOOL_EDITING_CANONICAL_TEXT_HPP
