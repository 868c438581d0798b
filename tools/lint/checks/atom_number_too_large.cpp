#include "lint/checks/checks.hpp"
#include "lint/post_fields.hpp"

namespace kelp::input::quill::lint {

Findings check_atom_number_too_large(const Source& source) {
  Findings findings;
  const std::optional<std::size_t> count = source.count_atoms();
  if (!count) return findings;
  for (const AtomNumber& atom : all_atom_numbers(source)) {
    if (atom.number < 1 || static_cast<std::size_t>(atom.number) <= *count) continue;
    findings.push_back({source.range_of(atom.token),
                        {text_fact("number", atom.token), count_fact("count", *count)}});
  }
  return findings;
}

}  // namespace kelp::input::quill::lint
