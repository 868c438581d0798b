#include "lint/checks/checks.hpp"
#include "lint/checks/odd_lines.hpp"

namespace kelp::input::quill::lint {

Findings check_unicode_blank(const Source& source) {
  return find_odd_lines(source, OddKind::Blank);
}

}  // namespace kelp::input::quill::lint
