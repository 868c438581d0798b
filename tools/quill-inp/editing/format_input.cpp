#include "quill-inp/editing/format_input.hpp"

#include <utility>

#include "kelp/input/quill/lossless/proof.hpp"
#include "quill-inp/editing/canonical_text.hpp"

namespace kelp::input::quill::tool {

std::optional<std::string> make_canonical_text(Session& session, ReadInput& input,
                                               const LossPolicy& policy, OldText old_text) {
  if (!accept_as_input(session, input, policy)) return std::nullopt;
  const QuillInput& document = input.read.result.input;
  report_warnings(session.reporter(), input.name, input.read.result);

  std::vector<LineLoss> line_losses = list_line_losses(input.read);
  forget_lines(input);
  CanonicalText canonical = canonical_text(document);
  // What the reader made of the old text is known, so only a different text has to be read.
  lossless::Proof proof;
  if (canonical.text != input.read.text) {
    const bool is_needed = old_text == OldText::Kept || !line_losses.empty();
    if (!is_needed && !canonical.text.empty()) forget_text(input);
    proof = lossless::prove(canonical.text, document, policy.max_change);
  }
  note_number_changes(session, input.name, proof.comparison.number_changes);
  const Losses losses{{}, std::move(line_losses), std::move(canonical.problems), proof, document};
  if (!accept_losses(session, input.name, losses, policy)) return std::nullopt;
  input.read.result = ParseResult();
  return std::move(canonical.text);
}

}  // namespace kelp::input::quill::tool
