#ifndef KELP_INPUT_QUILL_LOSSLESS_FILES_FILE_PLACE_HPP
#define KELP_INPUT_QUILL_LOSSLESS_FILES_FILE_PLACE_HPP

#include <string>

#include "files/file_descriptor.hpp"

namespace kelp::input::quill::lossless {

/// Where a file is: its folder, which is open, and its name there, which is not a symbolic link.
struct FilePlace {
  FileDescriptor folder;
  std::string name;
};

/// Returns where the file is that a path leads to, after all symbolic links. The whole path of the
/// folder may be longer than the system takes in one call. There may be no file of this name.
/// Throws FileError when the folder cannot be opened, and for links that lead in a circle.
FilePlace find_place(const std::string& path);

}  // namespace kelp::input::quill::lossless

#endif  // KELP_INPUT_QUILL_LOSSLESS_FILES_FILE_PLACE_HPP
