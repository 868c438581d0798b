#include "quill-inp/editing/loss_policy.hpp"

#include <cstddef>

#include "kelp/core/text.hpp"
#include "quill-inp/command_line/arguments.hpp"
#include "quill-inp/process/trouble.hpp"
#include "quill-inp/summary/number_words.hpp"

namespace kelp::input::quill::tool {

namespace {

// A text in which nearly everything differs needs no line for every number.
constexpr std::size_t most_losses_told = 20;

double parse_max_change(const std::string& text) {
  double change = 0.0;
  if (!core::text::try_parse_double(text, change) || !(change >= 0.0))
    throw UsageError("--max-change takes a number from 0 on, '1e-6', not '" + text + "'");
  return change;
}

void report_accepted(Reporter& reporter, const std::string& name, const std::vector<Loss>& losses) {
  for (std::size_t i = 0; i < losses.size() && i < most_losses_told; ++i)
    reporter.warning({name, losses[i].line}, "lost: " + losses[i].words);
  if (losses.size() > most_losses_told) {
    reporter.warning({name}, "lost: " + std::to_string(losses.size() - most_losses_told) +
                                 " more differences of this kind");
  }
}

}  // namespace

void add_loss_options(CLI::App& verb) {
  add_flag(verb, "--allow-loss", "Go on when something gets lost, and say what");
  add_value(verb, "--max-change", "NUMBER", "Accept numbers rounded by up to this (1e-6)");
}

LossPolicy read_loss_policy(const CLI::App& verb) {
  LossPolicy policy;
  policy.allows_loss = is_given(verb, "--allow-loss");
  if (const auto change = value_of(verb, "--max-change"))
    policy.max_change = parse_max_change(*change);
  return policy;
}

std::vector<Loss> list_losses(std::vector<Loss> also, const edit_support::Proof& proof) {
  if (proof.holds()) return also;
  also.emplace_back(proof.explanation, proof.line);
  for (const edit_support::DocumentDifference& difference : proof.comparison.differences) {
    if (proof.explanation.find(difference.words) == std::string::npos)
      also.emplace_back(difference.words);
  }
  return also;
}

bool accept_losses(Session& session, const std::string& name, const std::vector<Loss>& losses,
                   const LossPolicy& policy) {
  if (losses.empty()) return true;
  if (policy.allows_loss) {
    report_accepted(session.reporter(), name, losses);
    return true;
  }
  const Loss& first = losses.front();
  session.reporter().error({name, first.line},
                           "refused: " + first.words + " (--allow-loss goes on)");
  return false;
}

void note_number_changes(Session& session, const std::string& name,
                         const edit_support::NumberChanges& changes) {
  if (changes.count == 0) return;
  const bool is_one = changes.count == 1;
  session.reporter().note({name}, std::to_string(changes.count) +
                                      (is_one ? " number changes" : " numbers change") +
                                      ", by up to " + rounded_text(changes.largest));
}

}  // namespace kelp::input::quill::tool
