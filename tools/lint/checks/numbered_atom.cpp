#include "lint/checks/broken_atoms.hpp"
#include "lint/checks/checks.hpp"

namespace kelp::input::quill::lint {

Findings check_numbered_atom(const Source& source) {
  return find_broken_atoms(source, BrokenLine::Kind::Index);
}

}  // namespace kelp::input::quill::lint
