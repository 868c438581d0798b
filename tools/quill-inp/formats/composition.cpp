#include "quill-inp/formats/composition.hpp"

#include <map>

namespace kelp::input::quill::tool {

Composition hill_composition(const std::vector<AtomRecord>& atoms) {
  std::map<std::string, std::size_t> counts;
  for (const AtomRecord& atom : atoms) ++counts[atom.symbol];
  Composition composition;
  const auto move_over = [&](const std::string& symbol) {
    if (const auto entry = counts.find(symbol); entry != counts.end()) {
      composition.emplace_back(*entry);
      counts.erase(entry);
    }
  };
  if (counts.count("C") != 0) {
    move_over("C");
    move_over("H");
  }
  composition.insert(composition.end(), counts.begin(), counts.end());
  return composition;
}

std::string to_formula(const Composition& composition) {
  std::string formula;
  for (const auto& [symbol, count] : composition) {
    formula += symbol;
    if (count > 1) formula += std::to_string(count);
  }
  return formula;
}

}  // namespace kelp::input::quill::tool
