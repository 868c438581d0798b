#include "quill-inp/editing/wording.hpp"

#include "editing/phrases.hpp"
#include "kelp/input/quill/lossless/wording.hpp"
#include "quill-inp/text/counted.hpp"
#include "quill-inp/text/suggestion.hpp"

namespace kelp::input::quill::tool {

namespace {

using lossless::in_apostrophes;

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
  const std::string line = "line " + std::to_string(loss.number);
  switch (loss.kind) {
    case LineLoss::Kind::WholeLine:
      return line + " would be left out: " + in_apostrophes(loss.content);
    case LineLoss::Kind::HeaderText:
      return line + " says more than its command, and the rest would be lost: " +
             in_apostrophes(loss.content);
    case LineLoss::Kind::Indentation:
      return line + " would lose the blanks at its beginning: " + in_apostrophes(loss.content);
    case LineLoss::Kind::BlankLines:
      break;
  }
  if (loss.last == loss.number)
    return line + ", which is blank and between lines of raw text, would be left out";
  return "lines " + std::to_string(loss.number) + " to " + std::to_string(loss.last) +
         ", which are blank and between lines of raw text, would be left out";
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
  for (const lossless::QuotingProblem& problem : losses.quoting) {
    if (has_room()) all.push_back({lossless::words(problem)});
  }
  const lossless::Proof& proof = losses.proof;
  if (!proof.explanation) return all;
  if (has_room()) all.push_back({lossless::words(proof, losses.wanted), proof.line()});
  const std::vector<lossless::Difference>& differences = proof.comparison.differences;
  for (std::size_t i = 0; i < differences.size() && has_room(); ++i) {
    if (proof.explanation->difference != i) all.push_back({lossless::words(differences[i])});
  }
  return all;
}

std::string words(const EditNote& note) {
  if (note.kind == EditNote::Kind::NewName)
    return in_apostrophes(note.name) + " is new" + did_you_mean(note.similar);
  return "another parameter " + in_apostrophes(note.name) + " is still there";
}

std::string words(const AdditionDoubt& doubt) {
  const std::string number = std::to_string(doubt.number);
  const std::string names_atom = in_apostrophes(doubt.line) + " names atom " + number;
  switch (doubt.kind) {
    case AdditionDoubt::Kind::NumberBelowOne:
      return names_atom + ", but atom numbers count from 1";
    case AdditionDoubt::Kind::NumberTooLarge:
      return names_atom + ", but there " + (doubt.atoms == 1 ? "is" : "are") + " only " +
             counted(doubt.atoms, "atom");
    case AdditionDoubt::Kind::RepeatedNumber:
      return names_atom + " more than once";
    case AdditionDoubt::Kind::ScanNotFinite:
      return in_apostrophes(doubt.line) + " has a value that is infinite or not a number";
    case AdditionDoubt::Kind::CoordinateNotFinite:
      break;
  }
  return "atom " + number + " has a coordinate that is infinite or not a number";
}

std::string other_commands_words(const Ambiguity& ambiguity,
                                 const std::vector<std::size_t>& lines) {
  std::string text = in_apostrophes(ambiguity.name) + " is also on line";
  text += lines.size() == 1 ? " " : "s ";
  for (std::size_t i = 0; i < lines.size(); ++i) {
    if (i > 0) text += i + 1 == lines.size() ? " and " : ", ";
    text += std::to_string(lines[i]);
  }
  return text + "; the first is used";
}

std::string other_parameters_words(const Ambiguity& ambiguity) {
  return in_apostrophes(ambiguity.name) + " has " +
         counted(ambiguity.other_parameters, "other parameter") + " " +
         in_apostrophes(ambiguity.parameter) + "; the first is used";
}

}  // namespace kelp::input::quill::tool
