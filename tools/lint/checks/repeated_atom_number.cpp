#include <algorithm>

#include "lint/checks/checks.hpp"
#include "lint/post_fields.hpp"

namespace kelp::input::quill::lint {

void check_repeated_atom_number(const Source& source, Collector& findings) {
  for (std::size_t i = 0; i < source.post_lines().size(); ++i) {
    const std::vector<AtomNumber> atoms = atom_numbers_of(source, i);
    for (auto atom = atoms.begin(); atom != atoms.end(); ++atom) {
      const auto first = std::find_if(atoms.begin(), atom, [&](const AtomNumber& other) {
        return other.number == atom->number;
      });
      if (first != atom)
        findings.add({source.range_of(atom->token),
                      {text_fact("number", atom->token)},
                      {{source.range_of(first->token), "the same number"}}});
    }
  }
}

}  // namespace kelp::input::quill::lint
