#ifndef KELP_INPUT_QUILL_LINT_CHECKS_REFERENCED_FILES_HPP
#define KELP_INPUT_QUILL_LINT_CHECKS_REFERENCED_FILES_HPP

#include "lint/source.hpp"

namespace kelp::input::quill::lint {

/// Returns a finding for the path of each reference for which `is_found` returns true.
Findings find_references(const Source& source, bool (*is_found)(const Reference&));

}  // namespace kelp::input::quill::lint

#endif  // KELP_INPUT_QUILL_LINT_CHECKS_REFERENCED_FILES_HPP
