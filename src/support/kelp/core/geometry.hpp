#ifndef KELP_CORE_GEOMETRY_HPP
#define KELP_CORE_GEOMETRY_HPP

// A molecule as the programs of the family hand it to one another: plain data, copied deeply.
//
//   const Geometry hydrogen{{{"H", 0.0, 0.0, 0.0}, {"H", 0.0, 0.0, 0.74}}};
//
// Distinct objects may be used from distinct threads.

#include <string>
#include <vector>

namespace kelp::core {

/// One atom: its element symbol and Cartesian coordinates. Neither the symbol's spelling nor the
/// unit of the coordinates is fixed here; they are what the program that fills it says they are.
struct Atom {
  std::string symbol;
  double x = 0.0;
  double y = 0.0;
  double z = 0.0;
};

/// The atoms of a molecule. Atom numbers elsewhere refer to the order of this list.
struct Geometry {
  std::vector<Atom> atoms;
};

}  // namespace kelp::core

#endif  // KELP_CORE_GEOMETRY_HPP
