#ifndef KELP_INPUT_QUILL_TOOL_EDITING_FORMAT_INPUT_HPP
#define KELP_INPUT_QUILL_TOOL_EDITING_FORMAT_INPUT_HPP

#include <optional>
#include <string>

#include "quill-inp/editing/loss_policy.hpp"
#include "quill-inp/session/input_source.hpp"
#include "quill-inp/session/session.hpp"

namespace kelp::input::quill::tool {

/// Whether the text of an input is still needed when there is a new one.
enum class OldText { Kept, Forgotten };

/// Returns the canonical text of an input. Reports the reader's warnings, numbers that change and
/// what is lost. Returns nothing, after an error, when the text loses what the policy does not
/// allow. Forgets the lines and the document of the input, whose memory the proof and the linter
/// need. If the old text is not needed either, an empty one takes its place when the new text is
/// another one, and so it is still another one.
std::optional<std::string> make_canonical_text(Session& session, ReadInput& input,
                                               const LossPolicy& policy, OldText old_text);

}  // namespace kelp::input::quill::tool

#endif  // KELP_INPUT_QUILL_TOOL_EDITING_FORMAT_INPUT_HPP
