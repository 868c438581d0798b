#include "lint/checks/checks.hpp"
#include "lint/post_fields.hpp"

namespace kelp::input::quill::lint {

void check_atom_number_too_large(const Source& source, Collector& findings) {
  const std::optional<std::size_t> count = source.count_atoms();
  if (!count) return;
  for_each_atom_number(source, [&](const AtomNumber& atom) {
    if (atom.number < 1 || static_cast<std::size_t>(atom.number) <= *count) return;
    findings.add({source.range_of(atom.token),
                  {text_fact("number", atom.token), count_fact("count", *count)}});
  });
}

}  // namespace kelp::input::quill::lint
