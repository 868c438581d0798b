#include <array>
#include <cstddef>

#include "kelp/chem/elements.hpp"

namespace kelp::chem::elements {

namespace {

// In the order of the atomic numbers, ten to a line.
// clang-format off
constexpr std::array<std::string_view, 118> symbols = {
    "H",  "He", "Li", "Be", "B",  "C",  "N",  "O",  "F",  "Ne",
    "Na", "Mg", "Al", "Si", "P",  "S",  "Cl", "Ar", "K",  "Ca",
    "Sc", "Ti", "V",  "Cr", "Mn", "Fe", "Co", "Ni", "Cu", "Zn",
    "Ga", "Ge", "As", "Se", "Br", "Kr", "Rb", "Sr", "Y",  "Zr",
    "Nb", "Mo", "Tc", "Ru", "Rh", "Pd", "Ag", "Cd", "In", "Sn",
    "Sb", "Te", "I",  "Xe", "Cs", "Ba", "La", "Ce", "Pr", "Nd",
    "Pm", "Sm", "Eu", "Gd", "Tb", "Dy", "Ho", "Er", "Tm", "Yb",
    "Lu", "Hf", "Ta", "W",  "Re", "Os", "Ir", "Pt", "Au", "Hg",
    "Tl", "Pb", "Bi", "Po", "At", "Rn", "Fr", "Ra", "Ac", "Th",
    "Pa", "U",  "Np", "Pu", "Am", "Cm", "Bk", "Cf", "Es", "Fm",
    "Md", "No", "Lr", "Rf", "Db", "Sg", "Bh", "Hs", "Mt", "Ds",
    "Rg", "Cn", "Nh", "Fl", "Mc", "Lv", "Ts", "Og"};
// clang-format on

constexpr std::size_t first_letters = 26;
constexpr std::size_t second_letters = 27;  // one more for the symbols of one letter

constexpr std::size_t second_place(std::string_view symbol) {
  return symbol.size() == 1 ? 0 : static_cast<std::size_t>(symbol[1] - 'a') + 1;
}

/// The place of a symbol in the table of numbers: its first letter selects the row, and its second
/// letter, or the lack of one, selects the column.
constexpr std::size_t place_of(std::string_view symbol) {
  return static_cast<std::size_t>(symbol[0] - 'A') * second_letters + second_place(symbol);
}

/// The atomic number for every text with the shape of a symbol, 0 where no element has it.
constexpr auto make_numbers() {
  std::array<unsigned char, first_letters * second_letters> table{};
  for (std::size_t i = 0; i < symbols.size(); ++i) {
    table[place_of(symbols[i])] = static_cast<unsigned char>(i + 1);
  }
  return table;
}

constexpr auto numbers = make_numbers();

// shape = upper-case-letter [ lower-case-letter ]
constexpr bool has_shape_of_symbol(std::string_view text) {
  if (text.empty() || text.size() > 2) return false;
  if (text[0] < 'A' || text[0] > 'Z') return false;
  return text.size() == 1 || ('a' <= text[1] && text[1] <= 'z');
}

}  // namespace

std::optional<int> atomic_number_from_symbol(std::string_view symbol) {
  if (!has_shape_of_symbol(symbol)) return std::nullopt;
  const int number = numbers[place_of(symbol)];
  if (number == 0) return std::nullopt;
  return number;
}

}  // namespace kelp::chem::elements
