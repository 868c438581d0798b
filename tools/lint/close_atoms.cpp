#include "lint/close_atoms.hpp"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <optional>

namespace kelp::input::quill::lint {

namespace {

constexpr std::size_t axes = 3;
constexpr double largest_cell = 4503599627370496.0;  // 2^52: above, cells would be narrower than
                                                     // the distance of neighbouring doubles

using Place = std::array<double, axes>;
using Cell = std::array<std::int64_t, axes>;

Place place_of(const AtomRecord& atom) { return {atom.x, atom.y, atom.z}; }

bool is_finite(const Place& place) {
  return std::isfinite(place[0]) && std::isfinite(place[1]) && std::isfinite(place[2]);
}

double distance(const Place& left, const Place& right) {
  return std::hypot(left[0] - right[0], left[1] - right[1], left[2] - right[2]);
}

/// Returns the number of the cell that a coordinate, in widths of a cell, is in. Coordinates so
/// large that no two different ones are close each have a cell of their own.
std::int64_t cell_number(double coordinate) {
  if (std::fabs(coordinate) < largest_cell) {
    const auto number = static_cast<std::int64_t>(coordinate);
    return number - (static_cast<double>(number) > coordinate ? 1 : 0);
  }
  std::int64_t bits = 0;
  std::memcpy(&bits, &coordinate, sizeof bits);
  return bits;
}

constexpr unsigned bits_in_block = 3;  // a block has eight cells along each axis

/// Cells of one block are next to each other in a table. Most atoms are near those of the lines
/// before, and so their cells are found in the cache.
std::uint64_t hash_of(const Cell& cell) {
  constexpr std::uint64_t mask = (1U << bits_in_block) - 1;
  constexpr std::uint64_t factors[axes] = {0x9E3779B97F4A7C15ULL, 0xC2B2AE3D27D4EB4FULL,
                                           0x165667B19E3779F9ULL};
  std::uint64_t in_block = 0;
  std::uint64_t block = 0;
  for (std::size_t axis = 0; axis < axes; ++axis) {
    const auto number = static_cast<std::uint64_t>(cell[axis]);
    in_block = in_block << bits_in_block | (number & mask);
    block ^= (number >> bits_in_block) * factors[axis];
  }
  return ((block ^ (block >> 32U)) * 0xFF51AFD7ED558CCDULL >> 20U) ^ in_block;
}

/// Asks for memory that is read soon. In a large table, waiting for it would take most of the time.
void fetch_ahead(const void* address) {
#ifdef __GNUC__
  __builtin_prefetch(address);
#else
  static_cast<void>(address);
#endif
}

/// Atoms by cell. A cell is four times as wide as the distance that counts, so an atom that is
/// close to another one is in one of two cells along each axis, and mostly in the same. Atoms in
/// the table are not close to each other, so that the number of those in a cell has a limit.
class CellTable {
 public:
  /// A place, and where the table keeps the atoms that can be close to it.
  struct Surroundings {
    Place place;
    std::uint32_t own_slot;
    std::array<std::uint32_t, 8> slots;
    std::size_t slot_count;
  };

  CellTable(const std::vector<AtomRecord>& atoms, double limit)
      : atoms_(atoms), limit_(limit), cells_per_unit_(1.0 / (4 * limit)) {
    std::size_t size = 16;
    while (size < 2 * atoms.size()) size *= 2;
    newest_.assign(size, none);
    before_.resize(atoms.size());
  }

  Surroundings surroundings_of(const Place& place) const {
    Surroundings around = {place, slot_of(cell_of(place, 0.0)), {}, 0};
    const Cell low = cell_of(place, -limit_);
    const Cell high = cell_of(place, limit_);
    for (unsigned corner = 0; corner < 8; ++corner) {
      Cell cell = low;
      if (move_to_corner(cell, high, corner)) around.slots[around.slot_count++] = slot_of(cell);
    }
    return around;
  }

  void fetch_slots(const Surroundings& around) const {
    fetch_ahead(&newest_[around.own_slot]);
    for (std::size_t i = 0; i < around.slot_count; ++i) fetch_ahead(&newest_[around.slots[i]]);
  }

  void fetch_atoms(const Surroundings& around) const {
    for (std::size_t i = 0; i < around.slot_count; ++i) {
      const std::uint32_t at = newest_[around.slots[i]];
      if (at == none) continue;
      fetch_ahead(&atoms_[at].x);
      fetch_ahead(&before_[at]);
    }
  }

  /// Returns the first atom in the table that is closer than the limit.
  std::optional<std::size_t> find_close(const Surroundings& around) const {
    std::uint32_t first = none;
    for (std::size_t i = 0; i < around.slot_count; ++i)
      first = std::min(first, first_in(around.slots[i], around.place));
    if (first == none) return std::nullopt;
    return first;
  }

  void insert(const Surroundings& around, std::size_t atom) {
    std::uint32_t& newest = newest_[around.own_slot];
    before_[atom] = newest;
    newest = static_cast<std::uint32_t>(atom);
  }

 private:
  static constexpr std::uint32_t none = 0xFFFFFFFF;

  Cell cell_of(const Place& place, double shift) const {
    return {cell_number((place[0] + shift) * cells_per_unit_),
            cell_number((place[1] + shift) * cells_per_unit_),
            cell_number((place[2] + shift) * cells_per_unit_)};
  }

  std::uint32_t slot_of(const Cell& cell) const {
    return static_cast<std::uint32_t>(hash_of(cell) & (newest_.size() - 1));
  }

  /// Takes the higher cell along the axes of `corner`; returns false if it is the same cell.
  static bool move_to_corner(Cell& cell, const Cell& high, unsigned corner) {
    for (std::size_t axis = 0; axis < axes; ++axis) {
      if ((corner >> axis & 1U) == 0) continue;
      if (high[axis] == cell[axis]) return false;
      cell[axis] = high[axis];
    }
    return true;
  }

  std::uint32_t first_in(std::uint32_t slot, const Place& place) const {
    std::uint32_t first = none;
    for (std::uint32_t at = newest_[slot]; at != none; at = before_[at]) {
      const AtomRecord& other = atoms_[at];
      // The exact distance takes long, and most atoms of a cell are not close.
      if (std::fabs(other.x - place[0]) >= limit_ || std::fabs(other.y - place[1]) >= limit_)
        continue;
      if (distance(place_of(other), place) < limit_) first = at;
    }
    return first;
  }

  const std::vector<AtomRecord>& atoms_;
  double limit_;
  double cells_per_unit_;
  std::vector<std::uint32_t> newest_;  // by cell, the atom that came last
  std::vector<std::uint32_t> before_;  // by atom in the table, the one that came before it
};

struct NextAtom {
  std::size_t number;
  CellTable::Surroundings around;
};

/// Atoms whose memory is asked for together.
using NextAtoms = std::array<NextAtom, 32>;

/// Takes atoms with finite coordinates from number `from` on. Returns how many, and moves `from` to
/// the first one that is left.
std::size_t take_next(const std::vector<AtomRecord>& atoms, const CellTable& table,
                      std::size_t& from, NextAtoms& next) {
  std::size_t count = 0;
  for (; from < atoms.size() && count < next.size(); ++from) {
    const Place place = place_of(atoms[from]);
    if (!is_finite(place)) continue;
    next[count] = {from, table.surroundings_of(place)};
    table.fetch_slots(next[count].around);
    ++count;
  }
  for (std::size_t i = 0; i < count; ++i) table.fetch_atoms(next[i].around);
  return count;
}

}  // namespace

void for_each_close_pair(const std::vector<AtomRecord>& atoms, double limit,
                         const std::function<void(const ClosePair&)>& use) {
  CellTable table(atoms, limit);
  NextAtoms next;
  std::size_t from = 0;
  while (const std::size_t count = take_next(atoms, table, from, next)) {
    for (std::size_t i = 0; i < count; ++i) {
      const NextAtom& atom = next[i];
      if (const auto first = table.find_close(atom.around)) {
        use({*first, atom.number, distance(place_of(atoms[*first]), atom.around.place)});
      } else {
        table.insert(atom.around, atom.number);
      }
    }
  }
}

}  // namespace kelp::input::quill::lint
