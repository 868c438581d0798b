#include <cmath>

#include "lint/checks/checks.hpp"
#include "lint/rewriting.hpp"

namespace kelp::input::quill::lint {

void check_touching_columns(const Source& source, Collector& findings) {
  const std::vector<AtomRecord>& atoms = source.input().geometry.atoms;
  for (std::size_t i = 0; i < atoms.size(); ++i) {
    if (!reads_back(atoms[i]))
      findings.add({source.range_of(source.trimmed(source.atom_lines()[i]))});
  }
}

}  // namespace kelp::input::quill::lint
