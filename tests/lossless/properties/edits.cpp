#include "lossless/properties/edits.hpp"

#include "kelp/input/quill/lossless/wording.hpp"

namespace kelp::input::quill::lossless {

std::vector<std::string> EditOutcome::problems() const {
  std::vector<std::string> all;
  for (const QuotingProblem& problem : quoting_problems) all.push_back(words(problem));
  return all;
}

std::string EditOutcome::refusal() const {
  return quoting_problems.empty() ? words(proof, wanted) : words(quoting_problems.front());
}

EditOutcome edit_text(const std::string& text, const std::vector<Edit>& edits, double max_change) {
  const ReadText read = read_text(text);
  TrackedDocument document(read.result.input);
  for (const Edit& edit : edits) edit.apply(document);
  EditOutcome outcome;
  static_cast<SurgicalEdit&>(outcome) = render(read, document, max_change);
  outcome.wanted = document.document();
  return outcome;
}

}  // namespace kelp::input::quill::lossless
