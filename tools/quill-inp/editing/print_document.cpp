#include "quill-inp/editing/print_document.hpp"

#include <utility>

#include "kelp/input/quill/lossless/proof.hpp"
#include "quill-inp/editing/canonical_text.hpp"
#include "quill-inp/editing/strictness.hpp"

namespace kelp::input::quill::tool {

namespace {

/// The name for warnings whose line numbers are those of the printed text.
constexpr const char* name_of_output = "<stdout>";

}  // namespace

ExitCode print_document(Session& session, const std::string& name, const QuillInput& document,
                        const LossPolicy& policy, const OutputFile& output) {
  CanonicalText canonical = canonical_text(document);
  const lossless::Proof proof = lossless::prove(canonical.text, document, policy.max_change);
  note_number_changes(session, name, proof.comparison.number_changes);
  const Losses losses{{}, {}, std::move(canonical.problems), proof, document};
  // Their line numbers are those of a text that is not printed, and `name` is not the name of that
  // text.
  if (!accept_losses(session, name, losses, policy, LossLines::Hidden)) return ExitCode::Trouble;
  const std::string shown = output.path.value_or(name_of_output);
  if (!accept_findings(session, shown, canonical.text, policy)) return ExitCode::Trouble;
  report_warnings(session.reporter(), shown, proof.found);
  write_output(session, output, canonical.text);
  return ExitCode::Done;
}

}  // namespace kelp::input::quill::tool
