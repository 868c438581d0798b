#include "lint/checks/checks.hpp"
#include "lint/checks/constraint_like_atoms.hpp"

namespace kelp::input::quill::lint {

Findings check_angle_read_as_atom(const Source& source) {
  return find_constraint_like_atoms(source, false);
}

}  // namespace kelp::input::quill::lint
