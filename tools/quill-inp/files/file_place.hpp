#ifndef KELP_INPUT_QUILL_TOOL_FILES_FILE_PLACE_HPP
#define KELP_INPUT_QUILL_TOOL_FILES_FILE_PLACE_HPP

#include <string>

#include "quill-inp/process/file_descriptor.hpp"

namespace kelp::input::quill::tool {

/// Where a file is: its folder, which is open, and its name there, which is not a symbolic link.
struct FilePlace {
  FileDescriptor folder;
  std::string name;
};

/// Returns where the file is that a path leads to, after all symbolic links. The whole path of the
/// folder may be longer than the system takes in one call. There may be no file of this name.
/// Throws Trouble when the folder cannot be opened, and for links that lead in a circle.
FilePlace find_place(const std::string& path);

/// What a file is opened for: a pipe can be read, but cannot be replaced by another file.
enum class Purpose { Reading, Replacing };

/// Throws Trouble about a path that does not lead to a regular file; FolderTrouble if it leads to a
/// folder.
[[noreturn]] void throw_not_regular(unsigned mode, Purpose purpose);

/// Throws Trouble about a path that could not be opened because of this errno. If the path leads to
/// something other than a file, that is given as the reason.
[[noreturn]] void throw_cannot_open(const std::string& path, int error, Purpose purpose);

}  // namespace kelp::input::quill::tool

#endif  // KELP_INPUT_QUILL_TOOL_FILES_FILE_PLACE_HPP
