#ifndef KELP_CORE_GEOMETRY_HPP
#define KELP_CORE_GEOMETRY_HPP

// A molecule in the form that the programs of the family exchange: plain data; a copy copies
// everything.
//
//     const Geometry hydrogen{{{"H", 0.0, 0.0, 0.0}, {"H", 0.0, 0.0, 0.74}}};
//     hydrogen.atoms.size();  // 2
//
// Distinct objects may be used from distinct threads.

#include <string>
#include <vector>

namespace kelp::core {

/// One atom: its element symbol and Cartesian coordinates. The spelling of the symbol and the unit
/// of the coordinates are not fixed here; the program that fills them in decides.
struct Atom {
  std::string symbol;  ///< The symbol of the element.
  double x = 0.0;      ///< The first coordinate.
  double y = 0.0;      ///< The second coordinate.
  double z = 0.0;      ///< The third coordinate.
};

/// The atoms of a molecule. Atom numbers elsewhere refer to the order of this list.
struct Geometry {
  std::vector<Atom> atoms;  ///< In the order of the molecule.
};

}  // namespace kelp::core

#endif  // KELP_CORE_GEOMETRY_HPP
