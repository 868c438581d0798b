#include "quill-inp/editing/canonical_text.hpp"

#include <utility>

#include "kelp/input/quill/lossless/proof.hpp"
#include "kelp/input/quill/lossless/quoting.hpp"

namespace kelp::input::quill::tool {

std::optional<std::string> make_canonical_text(Session& session, const ReadInput& input,
                                               const LossPolicy& policy) {
  if (!accept_as_input(session, input, policy)) return std::nullopt;
  const QuillInput& document = input.read.result.input;
  report_warnings(session.reporter(), input.name, input.read.result);

  lossless::QuotedDocument quoted = lossless::quote(document);
  std::string text = quoted.document.to_string();
  const lossless::Proof proof = lossless::prove(text, document, policy.max_change);
  note_number_changes(session, input.name, proof.comparison.number_changes);
  const Losses losses{
      {}, list_line_losses(input.read), std::move(quoted.problems), proof, document};
  if (!accept_losses(session, input.name, losses, policy)) return std::nullopt;
  return text;
}

}  // namespace kelp::input::quill::tool
