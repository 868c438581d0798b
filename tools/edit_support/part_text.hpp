#ifndef KELP_INPUT_QUILL_EDIT_SUPPORT_PART_TEXT_HPP
#define KELP_INPUT_QUILL_EDIT_SUPPORT_PART_TEXT_HPP

#include <cstddef>
#include <string>

#include "kelp/input/quill/document.hpp"

// The library's writer writes a coordinate section as a whole. These give its lines one by one,
// without line ends, so that a single one can be put into a text.

namespace kelp::input::quill::edit_support {

std::string charge_and_multiplicity_text(const GeometryBlock& geometry);

std::string atom_text(const AtomRecord& atom);

/// The line that refers to path number `index`, for a geometry that refers to files or to a
/// trajectory.
std::string reference_text(const GeometryBlock& geometry, std::size_t index);

}  // namespace kelp::input::quill::edit_support

#endif  // KELP_INPUT_QUILL_EDIT_SUPPORT_PART_TEXT_HPP
