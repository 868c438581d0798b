#include "lint/checks/broken_atoms.hpp"
#include "lint/checks/checks.hpp"

namespace kelp::input::quill::lint {

Findings check_ended_atoms(const Source& source) {
  return find_broken_atoms(source, BrokenLine::Kind::Word);
}

}  // namespace kelp::input::quill::lint
