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

/// Returns the atoms of an XYZ file: a line with their number, a line of text, and a line for each
/// atom with a symbol and three coordinates. Other columns are ignored. Symbols are returned in the
/// letter case of element symbols, as the library reads them.
///
/// Throws Trouble, with the line, for a text without this form, with fewer atoms than it says, or
/// with more text after them: a trajectory has several structures, and this function cannot know
/// which of them is wanted.
std::vector<AtomRecord> read_xyz_atoms(std::string_view content);

/// Returns the atoms of every structure of a trajectory: XYZ files one after another, with blank
/// lines between them or not. Throws Trouble as read_xyz_atoms() does, for any of the structures.
std::vector<std::vector<AtomRecord>> read_xyz_frames(std::string_view content);

}  // namespace kelp::input::quill::tool

#endif  // KELP_INPUT_QUILL_TOOL_FORMATS_XYZ_FILE_HPP
