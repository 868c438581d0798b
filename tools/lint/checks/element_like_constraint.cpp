#include "lint/checks/checks.hpp"
#include "lint/checks/constraint_like_atoms.hpp"

namespace kelp::input::quill::lint {

Findings check_element_like_constraint(const Source& source) {
  return find_constraint_like_atoms(source, true);
}

}  // namespace kelp::input::quill::lint
