#ifndef KELP_INPUT_QUILL_LINT_CHECKS_BROKEN_ATOMS_HPP
#define KELP_INPUT_QUILL_LINT_CHECKS_BROKEN_ATOMS_HPP

#include "lint/source.hpp"

namespace kelp::input::quill::lint {

/// Returns a finding for the line that ended the coordinates, if it is of this kind: at the word
/// that is to blame, with a safe mend if the line is one of an atom, or of charge and multiplicity,
/// as soon as its characters are ASCII.
Findings find_broken_atoms(const Source& source, BrokenLine::Kind kind);

}  // namespace kelp::input::quill::lint

#endif  // KELP_INPUT_QUILL_LINT_CHECKS_BROKEN_ATOMS_HPP
