#include "lint/checks/broken_atoms.hpp"
#include "lint/checks/checks.hpp"

namespace kelp::input::quill::lint {

void check_charge_line(const Source& source, Collector& findings) {
  find_broken_atoms(source, BrokenLine::Kind::Charge, findings);
}

}  // namespace kelp::input::quill::lint
