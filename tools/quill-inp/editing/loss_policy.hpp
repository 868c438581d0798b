#ifndef KELP_INPUT_QUILL_TOOL_EDITING_LOSS_POLICY_HPP
#define KELP_INPUT_QUILL_TOOL_EDITING_LOSS_POLICY_HPP

#include <cstddef>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "edit_support/proof.hpp"
#include "quill-inp/session/session.hpp"

namespace CLI {
class App;
}  // namespace CLI

namespace kelp::input::quill::tool {

/// What may get lost on the way into a new text.
struct LossPolicy {
  bool allows_loss = false;
  double max_change = 1e-6;
};

/// Something that gets lost, in words, and the line that they speak of, if they speak of one: a
/// line of the old text that says more than is kept, or one of the new text that reads otherwise.
struct Loss {
  explicit Loss(std::string what, std::optional<std::size_t> at_line = std::nullopt)
      : words(std::move(what)), line(at_line) {}

  std::string words;
  std::optional<std::size_t> line;
};

/// Adds --allow-loss and --max-change to a verb, and reads them. Reading throws UsageError for a
/// change that is not a number from 0 on.
void add_loss_options(CLI::App& verb);
LossPolicy read_loss_policy(const CLI::App& verb);

/// Returns what a new text loses: what `also` names, and every difference between what it reads
/// back as and what was meant. The explanation of the proof stands for the first difference.
std::vector<Loss> list_losses(std::vector<Loss> also, const edit_support::Proof& proof);

/// Returns whether a text with these losses may be written or printed: when there are none, or when
/// the policy allows them. Either way they are reported, a refusal with the first one.
bool accept_losses(Session& session, const std::string& name, const std::vector<Loss>& losses,
                   const LossPolicy& policy);

/// Notes how many numbers change with the new text and by how much, if any do.
void note_number_changes(Session& session, const std::string& name,
                         const edit_support::NumberChanges& changes);

}  // namespace kelp::input::quill::tool

#endif  // KELP_INPUT_QUILL_TOOL_EDITING_LOSS_POLICY_HPP
