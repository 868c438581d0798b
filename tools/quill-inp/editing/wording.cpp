#include "quill-inp/editing/wording.hpp"

#include "lossless_edit/wording.hpp"
#include "quill-inp/text/suggestion.hpp"

namespace kelp::input::quill::tool {

namespace {

using lossless_edit::in_apostrophes;

std::string words(const SettingLoss& loss) {
  switch (loss.kind) {
    case SettingLoss::Kind::Parameters:
      return "the command " + in_apostrophes(loss.name) + " would lose its parameters";
    case SettingLoss::Kind::Value:
      return "the command " + in_apostrophes(loss.name) + " would lose its value " +
             in_apostrophes(loss.value);
    case SettingLoss::Kind::ParameterValue:
      break;
  }
  return "the parameter " + in_apostrophes(loss.name) + " would lose its value " +
         in_apostrophes(loss.value);
}

std::string words(const LineLoss& loss) {
  const bool is_whole = loss.kind == LineLoss::Kind::WholeLine;
  return "line " + std::to_string(loss.number) +
         (is_whole ? " would be left out: "
                   : " says more than its command, and the rest would be lost: ") +
         in_apostrophes(loss.content);
}

}  // namespace

std::vector<LossWords> words(const Losses& losses, std::size_t most) {
  std::vector<LossWords> all;
  const auto has_room = [&] { return all.size() < most; };
  for (const SettingLoss& loss : losses.settings) {
    if (has_room()) all.push_back({words(loss)});
  }
  for (const LineLoss& loss : losses.lines) {
    if (has_room()) all.push_back({words(loss), loss.number});
  }
  for (const lossless_edit::QuotingProblem& problem : losses.quoting) {
    if (has_room()) all.push_back({lossless_edit::words(problem)});
  }
  const lossless_edit::Proof& proof = losses.proof;
  if (!proof.explanation) return all;
  if (has_room()) all.push_back({lossless_edit::words(proof, losses.wanted), proof.line()});
  const std::vector<lossless_edit::Difference>& differences = proof.comparison.differences;
  for (std::size_t i = 0; i < differences.size() && has_room(); ++i) {
    if (proof.explanation->difference != i) all.push_back({lossless_edit::words(differences[i])});
  }
  return all;
}

std::string words(const EditNote& note) {
  if (note.kind == EditNote::Kind::NewName)
    return in_apostrophes(note.name) + " is new" + did_you_mean(note.similar);
  return "another parameter " + in_apostrophes(note.name) + " is still there";
}

}  // namespace kelp::input::quill::tool
