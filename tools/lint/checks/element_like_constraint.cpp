#include "lint/checks/checks.hpp"
#include "lint/checks/constraint_like_atoms.hpp"

namespace kelp::input::quill::lint {

void check_element_like_constraint(const Source& source, Collector& findings) {
  find_constraint_like_atoms(source, true, findings);
}

}  // namespace kelp::input::quill::lint
