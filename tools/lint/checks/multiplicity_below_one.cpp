#include <algorithm>

#include "lint/checks/checks.hpp"
#include "lint/tokens.hpp"

namespace kelp::input::quill::lint {

void check_multiplicity_below_one(const Source& source, Collector& findings) {
  const GeometryBlock& geometry = source.input().geometry;
  if (!geometry.has_charge_and_multiplicity || geometry.multiplicity >= 1) return;
  const std::string_view token = tokens_of(source.content(source.charge_line()))[1];
  findings.add({source.range_of(token), {text_fact("token", token)}});
}

}  // namespace kelp::input::quill::lint
