#ifndef KELP_INPUT_QUILL_TOOL_EDITING_LOSS_POLICY_HPP
#define KELP_INPUT_QUILL_TOOL_EDITING_LOSS_POLICY_HPP

#include <string>
#include <vector>

#include "quill-inp/command_line/arguments.hpp"
#include "quill-inp/editing/addition_doubts.hpp"
#include "quill-inp/editing/losses.hpp"
#include "quill-inp/session/input_source.hpp"
#include "quill-inp/session/session.hpp"

namespace kelp::input::quill::tool {

/// What a new text may lose.
struct LossPolicy {
  bool allows_loss = false;
  double max_change = accepted_change;
  bool is_strict = false;  // no text with an error that the linter finds
};

/// Add --allow-loss, --max-change and --strict to a verb, and read them. Reading throws UsageError
/// for a change that is not a number of 0 or more.
void add_loss_options(CLI::App& verb);
LossPolicy read_loss_policy(const CLI::App& verb);

/// Returns whether a text may be rewritten: when it looks like an input, or when the policy
/// allows losses, with a warning. Otherwise reports an error.
bool accept_as_input(Session& session, const ReadInput& input, const LossPolicy& policy);

/// Returns whether such additions may be written: when there are no doubts about them, or when the
/// policy allows losses, with warnings. Otherwise reports the first doubt as an error.
bool accept_additions(Session& session, const std::string& name,
                      const std::vector<AdditionDoubt>& doubts, const LossPolicy& policy);

/// Whether messages about losses have line numbers: only if the user can see the text they count.
enum class LossLines { Shown, Hidden };

/// Returns whether a text with these losses may be written or printed: when there are none, or when
/// the policy allows them. Allowed losses are reported as warnings, and the first of losses that
/// are not allowed as an error.
bool accept_losses(Session& session, const std::string& name, const Losses& losses,
                   const LossPolicy& policy, LossLines lines = LossLines::Shown);

/// Notes how many numbers change with the new text and by how much, if any do.
void note_number_changes(Session& session, const std::string& name,
                         const lossless::NumberChanges& changes);

}  // namespace kelp::input::quill::tool

#endif  // KELP_INPUT_QUILL_TOOL_EDITING_LOSS_POLICY_HPP
