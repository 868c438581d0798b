#ifndef KELP_INPUT_QUILL_LINT_CHECKS_LOST_DIGITS_HPP
#define KELP_INPUT_QUILL_LINT_CHECKS_LOST_DIGITS_HPP

#include <functional>

#include "lint/collector.hpp"
#include "lint/source.hpp"

namespace kelp::input::quill::lint {

/// Adds one finding for all rounded numbers whose change is wanted, at the first of them.
void find_lost_digits(const Source& source, const std::function<bool(double change)>& is_wanted,
                      Collector& findings);

}  // namespace kelp::input::quill::lint

#endif  // KELP_INPUT_QUILL_LINT_CHECKS_LOST_DIGITS_HPP
