#include "quill-inp/editing/print_document.hpp"

#include <vector>

#include "edit_support/proof.hpp"
#include "edit_support/value_spelling.hpp"

namespace kelp::input::quill::tool {

namespace {

/// The numbers of the lines are those of the text that is printed.
constexpr const char* name_of_output = "<stdout>";

}  // namespace

ExitCode print_document(Session& session, const std::string& name, const QuillInput& document,
                        const LossPolicy& policy) {
  const edit_support::SpelledDocument spelled = edit_support::spell(document);
  const std::string text = spelled.document.to_string();
  const edit_support::Proof proof = edit_support::prove(text, document, policy.max_change);
  note_number_changes(session, name, proof.comparison.number_changes);
  std::vector<Loss> losses = list_losses({spelled.reasons.begin(), spelled.reasons.end()}, proof);
  // Their lines are those of the text that is not printed, which `name` does not stand for.
  for (Loss& loss : losses) loss.line.reset();
  if (!accept_losses(session, name, losses, policy)) return ExitCode::Trouble;
  report_warnings(session.reporter(), name_of_output, proof.found);
  session.output().write(text);
  return ExitCode::Done;
}

}  // namespace kelp::input::quill::tool
