#include <cmath>

#include "lint/checks/checks.hpp"
#include "lint/rewriting.hpp"

namespace kelp::input::quill::lint {

Findings check_touching_columns(const Source& source) {
  Findings findings;
  const std::vector<AtomRecord>& atoms = source.input().geometry.atoms;
  for (std::size_t i = 0; i < atoms.size(); ++i) {
    if (!reads_back(atoms[i]))
      findings.push_back({source.range_of(source.trimmed(source.atom_lines()[i]))});
  }
  return findings;
}

}  // namespace kelp::input::quill::lint
