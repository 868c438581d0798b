#include "lint/checks/checks.hpp"

namespace kelp::input::quill::lint {

Findings check_no_charge_line(const Source& source) {
  if (source.input().geometry.has_charge_and_multiplicity || source.atom_lines().empty()) return {};
  return {{source.range_of(source.trimmed(source.atom_lines().front()))}};
}

}  // namespace kelp::input::quill::lint
