#include "lint/checks/broken_atoms.hpp"
#include "lint/checks/checks.hpp"

namespace kelp::input::quill::lint {

Findings check_labelled_atom(const Source& source) {
  return find_broken_atoms(source, BrokenLine::Kind::Label);
}

}  // namespace kelp::input::quill::lint
