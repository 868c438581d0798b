#include <kelp/chem/elements.hpp>

namespace kelp::chem::elements {

std::string normalize_symbol(std::string_view symbol) {
  return std::string(symbol).replace(0, 1, 1, symbol.front() == 'h' ? 'H' : symbol.front());
}

std::optional<int> atomic_number_from_symbol(std::string_view symbol) {
  if (symbol == "H") return 1;
  if (symbol == "Cl") return 17;
  if (symbol == "Zz") return 119;
  return std::nullopt;
}

}  // namespace kelp::chem::elements
