#ifndef KELP_INPUT_QUILL_TOOL_FILES_FLUSH_HPP
#define KELP_INPUT_QUILL_TOOL_FILES_FLUSH_HPP

#include <string>

namespace kelp::input::quill::tool {

/// Waits until the content of an open file is on disk. On failure, throws Trouble that names
/// `what`.
void flush_file(int file, const char* what);

/// Waits until the names in an open folder are on disk: a new name is on disk only when its folder
/// is. Some file systems cannot flush folders. Throws Trouble when it fails.
void flush_folder(int folder);

/// Does the same for a folder by its path.
void flush_folder(const std::string& path);

}  // namespace kelp::input::quill::tool

#endif  // KELP_INPUT_QUILL_TOOL_FILES_FLUSH_HPP
