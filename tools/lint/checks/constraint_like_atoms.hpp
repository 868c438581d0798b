#ifndef KELP_INPUT_QUILL_LINT_CHECKS_CONSTRAINT_LIKE_ATOMS_HPP
#define KELP_INPUT_QUILL_LINT_CHECKS_CONSTRAINT_LIKE_ATOMS_HPP

#include "lint/collector.hpp"
#include "lint/source.hpp"

namespace kelp::input::quill::lint {

/// Adds a finding for each of the last lines of the atoms that has the keyword of a constraint
/// or a scan instead of a symbol, and three different numbers from 1 on that could be those of
/// atoms. Atoms before them must be written in another form, or end with a blank line. With
/// `wants_elements`, adds those whose keyword is the symbol of an element, and otherwise those
/// that begin with "A".
void find_constraint_like_atoms(const Source& source, bool wants_elements, Collector& findings);

/// Returns whether there are such lines whose keyword is the symbol of an element.
bool has_elements_like_constraints(const Source& source);

}  // namespace kelp::input::quill::lint

#endif  // KELP_INPUT_QUILL_LINT_CHECKS_CONSTRAINT_LIKE_ATOMS_HPP
