#include "lint/checks/broken_atoms.hpp"
#include "lint/checks/checks.hpp"

namespace kelp::input::quill::lint {

void check_ended_atoms(const Source& source, Collector& findings) {
  find_broken_atoms(source, BrokenLine::Kind::Word, findings);
}

}  // namespace kelp::input::quill::lint
