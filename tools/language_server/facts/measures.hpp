#ifndef KELP_INPUT_QUILL_LANGUAGE_SERVER_FACTS_MEASURES_HPP
#define KELP_INPUT_QUILL_LANGUAGE_SERVER_FACTS_MEASURES_HPP

#include <optional>
#include <vector>

#include "kelp/input/quill/document.hpp"

namespace kelp::input::quill::language_server {

/// Returns the distance of two atoms in the unit of their coordinates. Not finite if a coordinate
/// is not, or if the distance is too large for a double.
double distance(const AtomRecord& first, const AtomRecord& second);

/// Returns the angle at `middle` in degrees, from 0 to 180. Nothing if it is in the place of one of
/// the others, or if a coordinate is not finite.
std::optional<double> angle(const AtomRecord& first, const AtomRecord& middle,
                            const AtomRecord& last);

/// Returns the dihedral angle in degrees, above -180 and up to 180: that between the plane of the
/// first three atoms and that of the last three. It is positive if, seen from the second atom, a
/// clockwise turn moves the first atom in front of the fourth. Nothing if three atoms in a row are
/// on one line, or if a coordinate is not finite.
std::optional<double> dihedral(const AtomRecord& first, const AtomRecord& second,
                               const AtomRecord& third, const AtomRecord& fourth);

/// Returns the distance of two atoms, the angle of three or the dihedral angle of four. Nothing for
/// any other number of atoms, and where the value is not defined or not finite.
std::optional<double> measure(const std::vector<AtomRecord>& atoms);

}  // namespace kelp::input::quill::language_server

#endif  // KELP_INPUT_QUILL_LANGUAGE_SERVER_FACTS_MEASURES_HPP
