#ifndef KELP_INPUT_QUILL_LINT_XYZ_FRAME_HPP
#define KELP_INPUT_QUILL_LINT_XYZ_FRAME_HPP

#include <cstddef>
#include <optional>
#include <string_view>

namespace kelp::input::quill::lint {

/// Returns how many atoms the first frame of an XYZ file has: a line with their number, a line of
/// text, and a line for each atom with a symbol, or some other word instead, and three numbers.
/// Returns nothing if the file does not begin with such a frame.
std::optional<std::size_t> count_atoms_of_first_frame(std::string_view content);

/// Returns whether nothing can follow in a file that begins so that would change what its first
/// frame is: all lines of the frame have their ends, or the first line states no number of atoms.
bool has_whole_first_frame(std::string_view beginning);

}  // namespace kelp::input::quill::lint

#endif  // KELP_INPUT_QUILL_LINT_XYZ_FRAME_HPP
