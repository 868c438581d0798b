#ifndef KELP_INPUT_QUILL_LINT_CHECKS_BROKEN_ATOMS_HPP
#define KELP_INPUT_QUILL_LINT_CHECKS_BROKEN_ATOMS_HPP

#include "lint/collector.hpp"
#include "lint/source.hpp"

namespace kelp::input::quill::lint {

/// Adds a finding for the line that ended the coordinates, if it is of this kind: at the word
/// that is the cause, with a safe mend if the line would be an atom line, or one of charge and
/// multiplicity, with ASCII characters.
void find_broken_atoms(const Source& source, BrokenLine::Kind kind, Collector& findings);

}  // namespace kelp::input::quill::lint

#endif  // KELP_INPUT_QUILL_LINT_CHECKS_BROKEN_ATOMS_HPP
