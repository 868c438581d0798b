#ifndef KELP_INPUT_QUILL_TOOL_FINDINGS_REFERENCED_FILES_HPP
#define KELP_INPUT_QUILL_TOOL_FINDINGS_REFERENCED_FILES_HPP

#include <cstdint>
#include <string>

#include "lint/source.hpp"

namespace kelp::input::quill::tool {

/// Finds a file that an input refers to, by its path from `folder`, which is empty for the current
/// folder. Only regular files are read, and none that is larger than `limit`. Of a long trajectory,
/// only the beginning is read. Throws nothing.
lint::ReferencedFile find_referenced_file(const std::string& folder, const std::string& path,
                                          std::uint64_t limit);

}  // namespace kelp::input::quill::tool

#endif  // KELP_INPUT_QUILL_TOOL_FINDINGS_REFERENCED_FILES_HPP
