#ifndef KELP_INPUT_QUILL_TOOL_FORMATS_XYZ_FILE_HPP
#define KELP_INPUT_QUILL_TOOL_FORMATS_XYZ_FILE_HPP

#include <cstddef>
#include <optional>
#include <string_view>
#include <vector>

#include "kelp/input/quill/document.hpp"

namespace kelp::input::quill::tool {

/// The number of lines in an XYZ file before its atoms.
inline constexpr std::size_t xyz_lines_before_atoms = 2;

/// Returns the number of atoms that the first line of an XYZ file states, or nothing if it does not
/// state one of 1 or more.
std::optional<std::size_t> find_xyz_count(std::string_view content);

/// The atoms of a structure, and the number, counted from 1, of the line with the first of them.
struct XyzStructure {
  std::vector<AtomRecord> atoms = {};
  std::size_t first_line = 0;
};

/// Returns a structure of an XYZ file: a line with the number of atoms, a line of text, and a line
/// for each atom with a symbol and three coordinates. Other columns are ignored. Symbols are
/// returned in the letter case of element symbols, as the library reads them. A trajectory has
/// several structures, one after another. `frame_number` says which of them is wanted; it counts
/// from 1, or with a negative number from the end, so that -1 is the last one. It is not 0.
///
/// Throws Trouble, with the line, for a text without this form and with fewer atoms than it says;
/// without a frame number, for more text after the atoms; with one, if there is no such structure.
XyzStructure read_xyz_structure(std::string_view content,
                                std::optional<int> frame_number = std::nullopt);

/// Returns every structure of a trajectory. Throws Trouble as read_xyz_structure() does, for any of
/// the structures.
std::vector<XyzStructure> read_xyz_structures(std::string_view content);

}  // namespace kelp::input::quill::tool

#endif  // KELP_INPUT_QUILL_TOOL_FORMATS_XYZ_FILE_HPP
