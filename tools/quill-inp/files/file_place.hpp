#ifndef KELP_INPUT_QUILL_TOOL_FILES_FILE_PLACE_HPP
#define KELP_INPUT_QUILL_TOOL_FILES_FILE_PLACE_HPP

#include <string>

#include "quill-inp/process/file_descriptor.hpp"

namespace kelp::input::quill::tool {

/// Where a file is: its folder, which is open, and its name there, which is no symbolic link.
struct FilePlace {
  FileDescriptor folder;
  std::string name;
};

/// Returns where the file is that a path leads to, after all symbolic links. The whole path of the
/// folder may be longer than the system takes in one call. There may be no file of this name.
/// Throws Trouble when the folder cannot be opened, and for links that lead in a circle.
FilePlace find_place(const std::string& path);

/// What a file is opened for: a pipe can be read, but no other file can be put in its place.
enum class Purpose { Reading, Replacing };

/// Throws the Trouble, of a folder FolderTrouble, of a path that leads to no regular file.
[[noreturn]] void throw_not_regular(unsigned mode, Purpose purpose);

/// Throws the Trouble of a path that could not be opened because of this errno. Where the path
/// leads to something else than a file, the reason is that.
[[noreturn]] void throw_cannot_open(const std::string& path, int error, Purpose purpose);

}  // namespace kelp::input::quill::tool

#endif  // KELP_INPUT_QUILL_TOOL_FILES_FILE_PLACE_HPP
