#include <cstdint>

#include "kelp/chem/elements.hpp"
#include "lint/checks/checks.hpp"
#include "lint/checks/constraint_like_atoms.hpp"
#include "lint/tokens.hpp"

namespace kelp::input::quill::lint {

namespace {

/// Returns the number of protons, or nothing if an element is not known.
std::optional<std::int64_t> count_protons(const std::vector<AtomRecord>& atoms) {
  std::int64_t protons = 0;
  for (const AtomRecord& atom : atoms) {
    const std::optional<int> number = chem::elements::atomic_number_from_symbol(atom.symbol);
    if (!number) return std::nullopt;
    protons += *number;
  }
  return protons;
}

/// Whether the atoms are those that were meant.
bool has_all_atoms(const Source& source) {
  return !source.input().geometry.atoms.empty() && !source.broken_line() &&
         !has_elements_like_constraints(source);
}

/// A multiplicity of m needs m - 1 electrons without a partner.
bool is_possible(std::int64_t electrons, std::int64_t multiplicity) {
  const std::int64_t paired = electrons - (multiplicity - 1);
  return paired >= 0 && paired % 2 == 0;
}

}  // namespace

void check_impossible_multiplicity(const Source& source, Collector& findings) {
  const GeometryBlock& geometry = source.input().geometry;
  const bool is_told = geometry.has_charge_and_multiplicity && geometry.multiplicity >= 1;
  if (!is_told || !has_all_atoms(source)) return;
  const std::optional<std::int64_t> protons = count_protons(geometry.atoms);
  if (!protons) return;
  const std::int64_t electrons = *protons - geometry.charge;
  if (is_possible(electrons, geometry.multiplicity)) return;
  const std::string_view token = tokens_of(source.content(source.charge_line()))[1];
  findings.add(
      {source.range_of(token), {text_fact("multiplicity", token), {"electrons", electrons}}});
}

}  // namespace kelp::input::quill::lint
