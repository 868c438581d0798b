#include "lint/close_atoms.hpp"

#include <array>
#include <cmath>
#include <cstdint>
#include <cstring>

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

/// Returns the number of the cell of this width that a coordinate is in. Coordinates so large that
/// no two different ones are close each have a cell of their own.
std::int64_t cell_number(double coordinate, double width) {
  const double number = std::floor(coordinate / width);
  if (std::fabs(number) < largest_cell) return static_cast<std::int64_t>(number);
  std::int64_t bits = 0;
  std::memcpy(&bits, &coordinate, sizeof bits);
  return bits;
}

Cell cell_of(const Place& place, double width) {
  return {cell_number(place[0], width), cell_number(place[1], width), cell_number(place[2], width)};
}

/// One multiplication for each axis and one for all: a table of many atoms is asked often.
std::uint64_t hash_of(const Cell& cell) {
  const std::uint64_t bits = static_cast<std::uint64_t>(cell[0]) * 0x9E3779B97F4A7C15ULL ^
                             static_cast<std::uint64_t>(cell[1]) * 0xC2B2AE3D27D4EB4FULL ^
                             static_cast<std::uint64_t>(cell[2]) * 0x165667B19E3779F9ULL;
  return (bits ^ (bits >> 32U)) * 0xFF51AFD7ED558CCDULL >> 20U;
}

/// Places by cell. A cell is twice as wide as the distance that counts, so a place that is close to
/// another one is in one of two cells along each axis. Places in the table are not close to each
/// other, so that a cell holds a few at most.
class CellTable {
 public:
  CellTable(std::size_t capacity, double limit) : limit_(limit), width_(2 * limit) {
    std::size_t size = 16;
    while (size < 2 * capacity) size *= 2;
    heads_.assign(size, none);
    entries_.reserve(capacity);
  }

  /// Returns the entry of a place that is closer to `place` than the limit, or a null pointer.
  const std::size_t* find_close(const Place& place, double& found) const {
    const Cell low = cell_of({place[0] - limit_, place[1] - limit_, place[2] - limit_}, width_);
    const Cell high = cell_of({place[0] + limit_, place[1] + limit_, place[2] + limit_}, width_);
    for (unsigned corner = 0; corner < 8; ++corner) {
      Cell cell = low;
      if (!move_to_corner(cell, high, corner)) continue;
      if (const std::size_t* atom = find_in(cell, place, found)) return atom;
    }
    return nullptr;
  }

  void insert(const Place& place, std::size_t atom) {
    const Cell cell = cell_of(place, width_);
    std::uint32_t& head = heads_[hash_of(cell) & (heads_.size() - 1)];
    entries_.push_back({place, atom, head});
    head = static_cast<std::uint32_t>(entries_.size() - 1);
  }

 private:
  static constexpr std::uint32_t none = 0xFFFFFFFF;

  struct Entry {
    Place place;
    std::size_t atom;
    std::uint32_t next;
  };

  /// Takes the higher cell along the axes of `corner`; false if it is the same one.
  static bool move_to_corner(Cell& cell, const Cell& high, unsigned corner) {
    for (std::size_t axis = 0; axis < axes; ++axis) {
      if ((corner >> axis & 1U) == 0) continue;
      if (high[axis] == cell[axis]) return false;
      cell[axis] = high[axis];
    }
    return true;
  }

  const std::size_t* find_in(const Cell& cell, const Place& place, double& found) const {
    std::uint32_t at = heads_[hash_of(cell) & (heads_.size() - 1)];
    for (; at != none; at = entries_[at].next) {
      const Place& other = entries_[at].place;
      // Most entries are of other cells, and the exact distance takes long.
      if (std::fabs(other[0] - place[0]) >= limit_ || std::fabs(other[1] - place[1]) >= limit_)
        continue;
      found = distance(other, place);
      if (found < limit_) return &entries_[at].atom;
    }
    return nullptr;
  }

  double limit_;
  double width_;
  std::vector<std::uint32_t> heads_;
  std::vector<Entry> entries_;
};

}  // namespace

std::vector<ClosePair> find_close_atoms(const std::vector<AtomRecord>& atoms, double limit) {
  std::vector<ClosePair> pairs;
  CellTable table(atoms.size(), limit);
  for (std::size_t i = 0; i < atoms.size(); ++i) {
    const Place place = place_of(atoms[i]);
    if (!is_finite(place)) continue;
    double found = 0.0;
    if (const std::size_t* first = table.find_close(place, found)) {
      pairs.push_back({*first, i, found});
    } else {
      table.insert(place, i);
    }
  }
  return pairs;
}

}  // namespace kelp::input::quill::lint
