#include "properties/obvious_elements.hpp"

#include <algorithm>
#include <cstddef>

#include "properties/obvious_text.hpp"

namespace kelp::input::quill::obvious {

// Period by period.
const std::array<std::string_view, 118> element_symbols = {
    "H",  "He", "Li", "Be", "B",  "C",  "N",  "O",  "F",  "Ne", "Na", "Mg", "Al", "Si", "P",
    "S",  "Cl", "Ar", "K",  "Ca", "Sc", "Ti", "V",  "Cr", "Mn", "Fe", "Co", "Ni", "Cu", "Zn",
    "Ga", "Ge", "As", "Se", "Br", "Kr", "Rb", "Sr", "Y",  "Zr", "Nb", "Mo", "Tc", "Ru", "Rh",
    "Pd", "Ag", "Cd", "In", "Sn", "Sb", "Te", "I",  "Xe", "Cs", "Ba", "La", "Ce", "Pr", "Nd",
    "Pm", "Sm", "Eu", "Gd", "Tb", "Dy", "Ho", "Er", "Tm", "Yb", "Lu", "Hf", "Ta", "W",  "Re",
    "Os", "Ir", "Pt", "Au", "Hg", "Tl", "Pb", "Bi", "Po", "At", "Rn", "Fr", "Ra", "Ac", "Th",
    "Pa", "U",  "Np", "Pu", "Am", "Cm", "Bk", "Cf", "Es", "Fm", "Md", "No", "Lr", "Rf", "Db",
    "Sg", "Bh", "Hs", "Mt", "Ds", "Rg", "Cn", "Nh", "Fl", "Mc", "Lv", "Ts", "Og"};

std::string normal_symbol(std::string_view symbol) {
  return upper(symbol.substr(0, 1)) + lower(symbol.substr(std::min<std::size_t>(1, symbol.size())));
}

std::optional<int> atomic_number(std::string_view symbol) {
  const auto* const place = std::find(element_symbols.begin(), element_symbols.end(), symbol);
  if (place == element_symbols.end()) return std::nullopt;
  return static_cast<int>(place - element_symbols.begin()) + 1;
}

}  // namespace kelp::input::quill::obvious
