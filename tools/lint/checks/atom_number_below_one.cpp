#include "lint/checks/checks.hpp"
#include "lint/post_fields.hpp"

namespace kelp::input::quill::lint {

Findings check_atom_number_below_one(const Source& source) {
  Findings findings;
  for (const AtomNumber& atom : all_atom_numbers(source)) {
    if (atom.number < 1)
      findings.push_back({source.range_of(atom.token), {text_fact("number", atom.token)}});
  }
  return findings;
}

}  // namespace kelp::input::quill::lint
