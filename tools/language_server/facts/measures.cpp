#include "language_server/facts/measures.hpp"

#include <cmath>

namespace kelp::input::quill::language_server {

namespace {

constexpr double degrees_per_radian = 57.295779513082320876798;

struct Vector {
  double x;
  double y;
  double z;
};

Vector between(const AtomRecord& from, const AtomRecord& to) {
  return {to.x - from.x, to.y - from.y, to.z - from.z};
}

double length(const Vector& a) { return std::hypot(a.x, a.y, a.z); }

double dot(const Vector& a, const Vector& b) { return a.x * b.x + a.y * b.y + a.z * b.z; }

Vector cross(const Vector& a, const Vector& b) {
  return {a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x};
}

/// Returns the vector of length 1 with the same direction; a vector without a direction, or with a
/// length that is not finite, gives one of NaN.
Vector unit(const Vector& a) {
  const double size = std::isfinite(length(a)) ? length(a) : 0.0 * length(a);
  return {a.x / size, a.y / size, a.z / size};
}

/// Coordinates have about six decimals, so that a smaller sine is only their rounding.
constexpr double smallest_sine = 1e-6;

std::optional<double> if_finite(double value) {
  return std::isfinite(value) ? std::optional<double>(value) : std::nullopt;
}

}  // namespace

double distance(const AtomRecord& first, const AtomRecord& second) {
  return length(between(first, second));
}

// The arc tangent is exact where the arc cosine of the product is not: near 0 and 180 degrees.
std::optional<double> angle(const AtomRecord& first, const AtomRecord& middle,
                            const AtomRecord& last) {
  const Vector a = unit(between(middle, first));
  const Vector b = unit(between(middle, last));
  return if_finite(std::atan2(length(cross(a, b)), dot(a, b)) * degrees_per_radian);
}

std::optional<double> dihedral(const AtomRecord& first, const AtomRecord& second,
                               const AtomRecord& third, const AtomRecord& fourth) {
  const Vector axis = unit(between(second, third));
  const Vector left = cross(unit(between(first, second)), axis);
  const Vector right = cross(axis, unit(between(third, fourth)));
  if (!(length(left) > smallest_sine && length(right) > smallest_sine)) return std::nullopt;
  const double radians = std::atan2(dot(cross(left, right), axis), dot(left, right));
  const double degrees = radians * degrees_per_radian;
  return degrees == -180.0 ? 180.0 : degrees;
}

std::optional<double> measure(const std::vector<AtomRecord>& atoms) {
  if (atoms.size() == 2) return if_finite(distance(atoms[0], atoms[1]));
  if (atoms.size() == 3) return angle(atoms[0], atoms[1], atoms[2]);
  if (atoms.size() == 4) return dihedral(atoms[0], atoms[1], atoms[2], atoms[3]);
  return std::nullopt;
}

}  // namespace kelp::input::quill::language_server
