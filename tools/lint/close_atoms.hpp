#ifndef KELP_INPUT_QUILL_LINT_CLOSE_ATOMS_HPP
#define KELP_INPUT_QUILL_LINT_CLOSE_ATOMS_HPP

#include <cstddef>
#include <functional>
#include <vector>

#include "kelp/input/quill/document.hpp"

namespace kelp::input::quill::lint {

/// An atom that is too close to one before it.
struct ClosePair {
  std::size_t first = 0;
  std::size_t second = 0;
  double distance = 0.0;
};

/// Passes on every atom that is closer than `limit` to an atom before it, with the first such atom.
/// Atoms that were passed on are not compared with those after them, so that many atoms in one
/// place take no longer than the same number in different places: the time is linear in the number
/// of atoms. Atoms with a coordinate that is not finite are not close to any other.
void for_each_close_pair(const std::vector<AtomRecord>& atoms, double limit,
                         const std::function<void(const ClosePair&)>& use);

}  // namespace kelp::input::quill::lint

#endif  // KELP_INPUT_QUILL_LINT_CLOSE_ATOMS_HPP
