#ifndef KELP_INPUT_QUILL_TOOL_FORMATS_XYZ_FILE_HPP
#define KELP_INPUT_QUILL_TOOL_FORMATS_XYZ_FILE_HPP

#include <cstddef>
#include <string_view>
#include <vector>

#include "kelp/input/quill/document.hpp"

namespace kelp::input::quill::tool {

/// The atoms of an XYZ file begin behind this many lines.
inline constexpr std::size_t xyz_lines_before_atoms = 2;

/// Returns the atoms of an XYZ file: a line with their number, a line of text, and a line for each
/// atom with a symbol and three coordinates. Further columns are passed over. Symbols come back in
/// the letter case of element symbols, the way the library reads them.
///
/// Throws Trouble, with the line, for a text that is not of this form, that has fewer atoms than
/// it says, or that goes on after them: a trajectory has several structures, and which of them is
/// meant is not for this function to guess.
std::vector<AtomRecord> read_xyz_atoms(std::string_view content);

}  // namespace kelp::input::quill::tool

#endif  // KELP_INPUT_QUILL_TOOL_FORMATS_XYZ_FILE_HPP
