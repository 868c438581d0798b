#include "lint/checks/checks.hpp"

namespace kelp::input::quill::lint {

// The finding about the line that prevented the coordinates from beginning says more than this.
void check_no_coordinates(const Source& source, Collector& findings) {
  const GeometryBlock& geometry = source.input().geometry;
  const bool has_section =
      geometry.kind != GeometryKind::None || geometry.has_charge_and_multiplicity;
  if (has_section || source.broken_line()) return;
  findings.add(Finding());
}

}  // namespace kelp::input::quill::lint
