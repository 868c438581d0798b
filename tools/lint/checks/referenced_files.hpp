#ifndef KELP_INPUT_QUILL_LINT_CHECKS_REFERENCED_FILES_HPP
#define KELP_INPUT_QUILL_LINT_CHECKS_REFERENCED_FILES_HPP

#include "lint/collector.hpp"
#include "lint/source.hpp"

namespace kelp::input::quill::lint {

/// Adds a finding for the path of each reference for which `is_found` returns true.
void find_references(const Source& source, bool (*is_found)(const Reference&), Collector& findings);

}  // namespace kelp::input::quill::lint

#endif  // KELP_INPUT_QUILL_LINT_CHECKS_REFERENCED_FILES_HPP
