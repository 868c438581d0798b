#ifndef KELP_INPUT_QUILL_LOSSLESS_EDITING_EXPECTED_LINES_HPP
#define KELP_INPUT_QUILL_LOSSLESS_EDITING_EXPECTED_LINES_HPP

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "kelp/input/quill/lossless/comparison.hpp"

// The lines that a document is written as, one by one, since the library's writer writes only whole
// coordinate sections. All lines come without their line ends.

namespace kelp::input::quill::lossless {

std::string charge_and_multiplicity_line(const GeometryBlock& geometry);

std::string atom_line(const AtomRecord& atom);

/// Returns the line that refers to path number `index`, for a geometry that refers to files or to a
/// trajectory.
std::string reference_line(const GeometryBlock& geometry, std::size_t index);

/// Returns the parts of `input` that have lines, in the order of the lines.
std::vector<Part> list_parts(const QuillInput& input);

/// Returns the line of a part.
std::string expected_line(const Part& part, const QuillInput& input);

/// Returns whether a line of this content can be the one that was written for the part:
/// expected_line(), or the line that a post-processing line was once read from, with any blanks
/// around it.
bool may_be_line_of(std::string_view content, const Part& part, const QuillInput& input);

}  // namespace kelp::input::quill::lossless

#endif  // KELP_INPUT_QUILL_LOSSLESS_EDITING_EXPECTED_LINES_HPP
