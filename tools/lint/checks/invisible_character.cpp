#include "lint/checks/checks.hpp"
#include "lint/checks/odd_lines.hpp"

namespace kelp::input::quill::lint {

Findings check_invisible_character(const Source& source) {
  return find_odd_lines(source, OddKind::Invisible);
}

}  // namespace kelp::input::quill::lint
