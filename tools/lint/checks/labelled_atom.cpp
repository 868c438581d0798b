#include "lint/checks/broken_atoms.hpp"
#include "lint/checks/checks.hpp"

namespace kelp::input::quill::lint {

void check_labelled_atom(const Source& source, Collector& findings) {
  find_broken_atoms(source, BrokenLine::Kind::Label, findings);
}

}  // namespace kelp::input::quill::lint
