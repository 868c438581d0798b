#include "lint/checks/broken_atoms.hpp"
#include "lint/checks/checks.hpp"

namespace kelp::input::quill::lint {

Findings check_charge_line(const Source& source) {
  return find_broken_atoms(source, BrokenLine::Kind::Charge);
}

}  // namespace kelp::input::quill::lint
