#ifndef KELP_INPUT_QUILL_LANGUAGE_SERVER_DIAGNOSTICS_DIAGNOSTIC_LIST_HPP
#define KELP_INPUT_QUILL_LANGUAGE_SERVER_DIAGNOSTICS_DIAGNOSTIC_LIST_HPP

#include "language_server/diagnostics/page_address.hpp"
#include "language_server/documents/snapshot.hpp"
#include "language_server/features/feature.hpp"
#include "language_server/protocol/json.hpp"
#include "lint/lint.hpp"

namespace kelp::input::quill::language_server {

/// Returns a finding as a diagnostic of the protocol, with what the client can show of it. Its
/// message is that of the finding, and the advice on a line of its own.
Json diagnostic_of(const lint::Finding& finding, const Snapshot& snapshot,
                   const ClientAbilities& client, const Pages& pages);

/// Returns findings as diagnostics, in their order. For each code of which there are more, one
/// diagnostic follows that says how many, at the place of the last finding with this code. It has
/// no code itself, because it cannot be corrected as a finding can.
Json diagnostic_list(const lint::FirstFindings& found, const Snapshot& snapshot,
                     const ClientAbilities& client, const Pages& pages);

}  // namespace kelp::input::quill::language_server

#endif  // KELP_INPUT_QUILL_LANGUAGE_SERVER_DIAGNOSTICS_DIAGNOSTIC_LIST_HPP
