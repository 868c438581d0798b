#ifndef KELP_INPUT_QUILL_LINT_CHECKS_BROKEN_ATOMS_HPP
#define KELP_INPUT_QUILL_LINT_CHECKS_BROKEN_ATOMS_HPP

#include "lint/source.hpp"

namespace kelp::input::quill::lint {

/// Returns a finding for the line that ended the coordinates, if it is of this kind: at the word
/// that is the cause, with a safe mend if the line would be an atom line, or one of charge and
/// multiplicity, with ASCII characters.
Findings find_broken_atoms(const Source& source, BrokenLine::Kind kind);

}  // namespace kelp::input::quill::lint

#endif  // KELP_INPUT_QUILL_LINT_CHECKS_BROKEN_ATOMS_HPP
