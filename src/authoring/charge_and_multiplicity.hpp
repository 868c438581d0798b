#ifndef KELP_INPUT_QUILL_AUTHORING_CHARGE_AND_MULTIPLICITY_HPP
#define KELP_INPUT_QUILL_AUTHORING_CHARGE_AND_MULTIPLICITY_HPP

#include "kelp/input/quill/document.hpp"

// The editor and the builder both change these in place; the builder does so without a copy of its
// document.

namespace kelp::input::quill {

inline void assign_charge_and_multiplicity(GeometryBlock& geometry, int charge, int multiplicity) {
  geometry.charge = charge;
  geometry.multiplicity = multiplicity;
  geometry.has_charge_and_multiplicity = true;
}

inline void reset_charge_and_multiplicity(GeometryBlock& geometry) {
  geometry.charge = 0;
  geometry.multiplicity = 1;
  geometry.has_charge_and_multiplicity = false;
}

}  // namespace kelp::input::quill

#endif  // KELP_INPUT_QUILL_AUTHORING_CHARGE_AND_MULTIPLICITY_HPP
