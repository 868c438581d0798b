#include "lint/checks/checks.hpp"
#include "lint/checks/odd_lines.hpp"

namespace kelp::input::quill::lint {

void check_unicode_blank(const Source& source, Collector& findings) {
  find_odd_lines(source, OddKind::Blank, findings);
}

}  // namespace kelp::input::quill::lint
