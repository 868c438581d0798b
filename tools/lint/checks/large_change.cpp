#include "lint/checks/checks.hpp"
#include "lint/checks/lost_digits.hpp"

namespace kelp::input::quill::lint {

void check_large_change(const Source& source, Collector& findings) {
  const double limit = source.options().max_change;
  find_lost_digits(
      source, [limit](double change) { return change > limit; }, findings);
}

}  // namespace kelp::input::quill::lint
