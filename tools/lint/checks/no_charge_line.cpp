#include "lint/checks/checks.hpp"

namespace kelp::input::quill::lint {

void check_no_charge_line(const Source& source, Collector& findings) {
  if (source.input().geometry.has_charge_and_multiplicity || source.atom_lines().empty()) return;
  findings.add({source.range_of(source.trimmed(source.atom_lines().front()))});
}

}  // namespace kelp::input::quill::lint
