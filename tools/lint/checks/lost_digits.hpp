#ifndef KELP_INPUT_QUILL_LINT_CHECKS_LOST_DIGITS_HPP
#define KELP_INPUT_QUILL_LINT_CHECKS_LOST_DIGITS_HPP

#include <vector>

#include "lint/rewriting.hpp"

namespace kelp::input::quill::lint {

/// Returns one finding for all of these numbers, at the first of them, or none if there are no
/// numbers.
Findings find_lost_digits(const Source& source, const std::vector<RoundedNumber>& numbers);

}  // namespace kelp::input::quill::lint

#endif  // KELP_INPUT_QUILL_LINT_CHECKS_LOST_DIGITS_HPP
