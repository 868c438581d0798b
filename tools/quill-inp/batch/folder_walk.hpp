#ifndef KELP_INPUT_QUILL_TOOL_BATCH_FOLDER_WALK_HPP
#define KELP_INPUT_QUILL_TOOL_BATCH_FOLDER_WALK_HPP

#include <functional>
#include <string>
#include <vector>

namespace kelp::input::quill::tool {

/// Returns whether a path names a folder, or a link to one.
bool is_folder(const std::string& path);

/// Returns the paths of all files in a folder and the folders in it that match one of the patterns,
/// sorted by their names. A pattern like those of a shell is compared with the name of a file, or,
/// if there is a "/" in it, with the path below the folder. Links to folders and hidden folders are
/// skipped; a hidden file matches only a pattern that begins with a dot. `tell_failure` is called
/// for a folder that cannot be read, with its path and the error.
std::vector<std::string> find_files(
    const std::string& folder, const std::vector<std::string>& patterns,
    const std::function<void(const std::string&, int)>& tell_failure);

}  // namespace kelp::input::quill::tool

#endif  // KELP_INPUT_QUILL_TOOL_BATCH_FOLDER_WALK_HPP
