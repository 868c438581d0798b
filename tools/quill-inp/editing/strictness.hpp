#ifndef KELP_INPUT_QUILL_TOOL_EDITING_STRICTNESS_HPP
#define KELP_INPUT_QUILL_TOOL_EDITING_STRICTNESS_HPP

#include <string>
#include <string_view>

#include "quill-inp/editing/loss_policy.hpp"
#include "quill-inp/session/session.hpp"

namespace kelp::input::quill::tool {

/// Returns whether a text may be written or printed: always, unless the policy is strict; then, if
/// the linter finds no error in it. The first error is reported with its line and its code.
/// `argument` names the input, in whose project the text belongs. Throws Trouble when the file with
/// the choices of the project cannot be used. The text is the same afterwards; it is not constant
/// so that it can be read without a copy.
bool accept_findings(Session& session, const std::string& argument, std::string& text,
                     const LossPolicy& policy);

}  // namespace kelp::input::quill::tool

#endif  // KELP_INPUT_QUILL_TOOL_EDITING_STRICTNESS_HPP
