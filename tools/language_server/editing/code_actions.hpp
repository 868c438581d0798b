#ifndef KELP_INPUT_QUILL_LANGUAGE_SERVER_EDITING_CODE_ACTIONS_HPP
#define KELP_INPUT_QUILL_LANGUAGE_SERVER_EDITING_CODE_ACTIONS_HPP

#include <functional>
#include <string>

#include "language_server/documents/snapshot.hpp"
#include "language_server/features/feature.hpp"
#include "language_server/protocol/json.hpp"
#include "lint/finding.hpp"

namespace kelp::input::quill::language_server {

/// What was found in a text, and how the text is after all safe corrections, which is only asked
/// for when there are some.
struct Corrections {
  const lint::Findings& findings;
  std::function<std::string()> mended_text;
};

/// Returns the corrections for the findings in a range as code actions of the kind "quickfix", and
/// one of the kind "source.fixAll" for all safe ones in the text; `context` is that of the request,
/// which may ask for some kinds only. Returns none for a client that knows commands only.
Json code_actions(const Snapshot& snapshot, const lint::Range& range, const Json& context,
                  const Corrections& corrections, const ClientAbilities& client);

/// What the server tells a client about them.
Json code_action_options();

}  // namespace kelp::input::quill::language_server

#endif  // KELP_INPUT_QUILL_LANGUAGE_SERVER_EDITING_CODE_ACTIONS_HPP
