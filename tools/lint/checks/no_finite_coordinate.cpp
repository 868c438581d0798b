#include <cmath>

#include "lint/checks/checks.hpp"
#include "lint/tokens.hpp"

namespace kelp::input::quill::lint {

void check_no_finite_coordinate(const Source& source, Collector& findings) {
  const std::vector<AtomRecord>& atoms = source.input().geometry.atoms;
  for (std::size_t i = 0; i < atoms.size(); ++i) {
    const double coordinates[] = {atoms[i].x, atoms[i].y, atoms[i].z};
    for (std::size_t axis = 0; axis < 3; ++axis) {
      if (std::isfinite(coordinates[axis])) continue;
      const std::string_view token = tokens_of(source.content(source.atom_lines()[i]))[axis + 1];
      findings.add({source.range_of(token), {text_fact("token", token)}});
    }
  }
}

}  // namespace kelp::input::quill::lint
