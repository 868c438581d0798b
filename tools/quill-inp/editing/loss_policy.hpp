#ifndef KELP_INPUT_QUILL_TOOL_EDITING_LOSS_POLICY_HPP
#define KELP_INPUT_QUILL_TOOL_EDITING_LOSS_POLICY_HPP

#include <string>

#include "quill-inp/command_line/arguments.hpp"
#include "quill-inp/editing/losses.hpp"
#include "quill-inp/session/session.hpp"

namespace kelp::input::quill::tool {

/// What may get lost on the way into a new text.
struct LossPolicy {
  bool allows_loss = false;
  double max_change = 1e-6;
};

/// Adds --allow-loss and --max-change to a verb, and reads them. Reading throws UsageError for a
/// change that is not a number from 0 on.
void add_loss_options(CLI::App& verb);
LossPolicy read_loss_policy(const CLI::App& verb);

/// Whether the lines that losses are about are lines of a text that somebody can look at.
enum class LossLines { Shown, Hidden };

/// Returns whether a text with these losses may be written or printed: when there are none, or when
/// the policy allows them. Either way they are reported, a refusal with the first one.
bool accept_losses(Session& session, const std::string& name, const Losses& losses,
                   const LossPolicy& policy, LossLines lines = LossLines::Shown);

/// Notes how many numbers change with the new text and by how much, if any do.
void note_number_changes(Session& session, const std::string& name,
                         const lossless_edit::NumberChanges& changes);

}  // namespace kelp::input::quill::tool

#endif  // KELP_INPUT_QUILL_TOOL_EDITING_LOSS_POLICY_HPP
