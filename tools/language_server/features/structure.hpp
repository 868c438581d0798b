#ifndef KELP_INPUT_QUILL_LANGUAGE_SERVER_FEATURES_STRUCTURE_HPP
#define KELP_INPUT_QUILL_LANGUAGE_SERVER_FEATURES_STRUCTURE_HPP

#include "language_server/documents/snapshot.hpp"
#include "language_server/protocol/json.hpp"
#include "lint/source.hpp"

namespace kelp::input::quill::language_server {

/// Returns what an editor needs to draw the molecule of an input:
///
///   {"atoms": [{"symbol": "O", "position": [0.0, 0.0, 0.117], "line": 2}],
///    "constraints": [{"kind": "bond", "atoms": [1, 2], "line": 5}]}
///
/// Lines count from 0, as the editor counts them; that of an atom of another file is null, as is a
/// coordinate that is not finite. The atoms are those of Molecule, and their numbers those of the
/// constraints and scans, whether or not there are such atoms.
Json structure_of(const Snapshot& snapshot, const lint::Source& source);

}  // namespace kelp::input::quill::language_server

#endif  // KELP_INPUT_QUILL_LANGUAGE_SERVER_FEATURES_STRUCTURE_HPP
