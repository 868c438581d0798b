#ifndef KELP_INPUT_QUILL_LINT_CHECKS_CONSTRAINT_LIKE_ATOMS_HPP
#define KELP_INPUT_QUILL_LINT_CHECKS_CONSTRAINT_LIKE_ATOMS_HPP

#include "lint/source.hpp"

namespace kelp::input::quill::lint {

/// Returns a finding for each of the last lines of the atoms that has the keyword of a constraint
/// or a scan in place of a symbol, and three different numbers from 1 on that could be those of
/// atoms. Atoms before them must be written otherwise, or end with a blank line. Of these lines,
/// those that begin with "A" are no atoms at all; `wants_elements` tells which ones to return.
Findings find_constraint_like_atoms(const Source& source, bool wants_elements);

}  // namespace kelp::input::quill::lint

#endif  // KELP_INPUT_QUILL_LINT_CHECKS_CONSTRAINT_LIKE_ATOMS_HPP
