#include "kelp/chem/elements.hpp"
#include "lint/checks/checks.hpp"
#include "lint/tokens.hpp"

namespace kelp::input::quill::lint {

void check_unknown_element(const Source& source, Collector& findings) {
  const std::vector<AtomRecord>& atoms = source.input().geometry.atoms;
  for (std::size_t i = 0; i < atoms.size(); ++i) {
    if (chem::elements::atomic_number_from_symbol(atoms[i].symbol)) continue;
    const std::string_view token = tokens_of(source.content(source.atom_lines()[i])).front();
    findings.add({source.range_of(token), {text_fact("symbol", atoms[i].symbol)}});
  }
}

}  // namespace kelp::input::quill::lint
