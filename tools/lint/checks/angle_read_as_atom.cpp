#include "lint/checks/checks.hpp"
#include "lint/checks/constraint_like_atoms.hpp"

namespace kelp::input::quill::lint {

void check_angle_read_as_atom(const Source& source, Collector& findings) {
  find_constraint_like_atoms(source, false, findings);
}

}  // namespace kelp::input::quill::lint
