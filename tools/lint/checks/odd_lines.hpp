#ifndef KELP_INPUT_QUILL_LINT_CHECKS_ODD_LINES_HPP
#define KELP_INPUT_QUILL_LINT_CHECKS_ODD_LINES_HPP

#include "lint/collector.hpp"
#include "lint/odd_characters.hpp"
#include "lint/source.hpp"

namespace kelp::input::quill::lint {

/// Adds a finding for each line with characters of this kind, at the first of them. It has a
/// safe mend if replacing all odd characters of the line by ASCII makes a keyword.
void find_odd_lines(const Source& source, OddKind kind, Collector& findings);

}  // namespace kelp::input::quill::lint

#endif  // KELP_INPUT_QUILL_LINT_CHECKS_ODD_LINES_HPP
