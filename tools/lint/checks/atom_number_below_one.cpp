#include "lint/checks/checks.hpp"
#include "lint/post_fields.hpp"

namespace kelp::input::quill::lint {

void check_atom_number_below_one(const Source& source, Collector& findings) {
  for_each_atom_number(source, [&](const AtomNumber& atom) {
    if (atom.number < 1)
      findings.add({source.range_of(atom.token), {text_fact("number", atom.token)}});
  });
}

}  // namespace kelp::input::quill::lint
