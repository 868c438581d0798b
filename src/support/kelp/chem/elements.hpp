#ifndef KELP_CHEM_ELEMENTS_HPP
#define KELP_CHEM_ELEMENTS_HPP

// The chemical elements by symbol: hydrogen, 1, to oganesson, 118.
//
//     atomic_number_from_symbol(normalize_symbol("cl"));  // 17
//
// Symbols and atomic numbers are those of the IUPAC Periodic Table of the Elements (release of
// 4 May 2022, iupac.org/what-we-do/periodic-table-of-elements). There are no names for isotopes
// ("D", "T"), dummy atoms ("X", "Bq") or elements without an approved name ("Uue"). No function
// keeps any state; any number of threads may call them at once.

#include <optional>
#include <string>
#include <string_view>

namespace kelp::chem::elements {

/// Returns `symbol` in the letter case of element symbols: the first byte in upper case and the
/// rest in lower case, "CL" as "Cl". Only the letters "A" to "Z" and "a" to "z" are changed, and
/// nothing is trimmed. The result need not be a symbol: "XYZ" gives "Xyz".
std::string normalize_symbol(std::string_view symbol);

/// Returns the atomic number, 1 to 118, of the element with exactly this symbol, or nothing when
/// there is none. Letter case matters: "Cl" is chlorine, and no element has the symbol "CL" or
/// "cl". Takes constant time.
std::optional<int> atomic_number_from_symbol(std::string_view symbol);

}  // namespace kelp::chem::elements

#endif  // KELP_CHEM_ELEMENTS_HPP
