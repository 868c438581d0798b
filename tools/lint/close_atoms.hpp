#ifndef KELP_INPUT_QUILL_LINT_CLOSE_ATOMS_HPP
#define KELP_INPUT_QUILL_LINT_CLOSE_ATOMS_HPP

#include <cstddef>
#include <vector>

#include "kelp/input/quill/document.hpp"

namespace kelp::input::quill::lint {

/// An atom that is too close to one before it.
struct ClosePair {
  std::size_t first = 0;
  std::size_t second = 0;
  double distance = 0.0;
};

/// Returns every atom that is closer than `limit` to an atom before it, with the first such atom.
/// Atoms that were returned are not compared with those after them, so that many atoms in one place
/// take no longer than the same number in different places: the time is linear in the number of
/// atoms. Atoms with a coordinate that is not finite are not close to any other.
std::vector<ClosePair> find_close_atoms(const std::vector<AtomRecord>& atoms, double limit);

}  // namespace kelp::input::quill::lint

#endif  // KELP_INPUT_QUILL_LINT_CLOSE_ATOMS_HPP
