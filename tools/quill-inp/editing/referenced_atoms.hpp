#ifndef KELP_INPUT_QUILL_TOOL_EDITING_REFERENCED_ATOMS_HPP
#define KELP_INPUT_QUILL_TOOL_EDITING_REFERENCED_ATOMS_HPP

#include <cstddef>
#include <optional>
#include <string>

namespace kelp::input::quill::tool {

/// Returns the number of atoms that an XYZ file or trajectory says its first structure has. A path
/// that does not begin with "/" is relative to `folder`. Returns nothing if there is no such file,
/// if it cannot be read, or if it does not begin with a number.
std::optional<std::size_t> count_referenced_atoms(const std::string& folder,
                                                  const std::string& path);

}  // namespace kelp::input::quill::tool

#endif  // KELP_INPUT_QUILL_TOOL_EDITING_REFERENCED_ATOMS_HPP
