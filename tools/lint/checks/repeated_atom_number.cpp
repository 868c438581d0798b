#include <algorithm>

#include "lint/checks/checks.hpp"
#include "lint/post_fields.hpp"

namespace kelp::input::quill::lint {

Findings check_repeated_atom_number(const Source& source) {
  Findings findings;
  for (std::size_t i = 0; i < source.post_lines().size(); ++i) {
    const std::vector<AtomNumber> atoms = atom_numbers_of(source, i);
    for (auto atom = atoms.begin(); atom != atoms.end(); ++atom) {
      const auto first = std::find_if(atoms.begin(), atom, [&](const AtomNumber& other) {
        return other.number == atom->number;
      });
      if (first != atom)
        findings.push_back({source.range_of(atom->token),
                            {text_fact("number", atom->token)},
                            {{source.range_of(first->token), "the same number"}}});
    }
  }
  return findings;
}

}  // namespace kelp::input::quill::lint
