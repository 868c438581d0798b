#ifndef KELP_INPUT_QUILL_TOOL_FILES_FILE_ORIGIN_HPP
#define KELP_INPUT_QUILL_TOOL_FILES_FILE_ORIGIN_HPP

#include <sys/stat.h>

#include <chrono>
#include <string>

#include "quill-inp/process/file_descriptor.hpp"

namespace kelp::input::quill::tool {

/// The file that a text is read from and that is then to be replaced, with its state before it was
/// read. Folder and file are open, and `name`, which is not a symbolic link, is the file's name in
/// the folder. So renaming a folder in its path does not lead to another file, and the length of
/// the path does not matter. As long as the object lives, other runs of this program that want to
/// replace the file have to wait.
struct FileOrigin {
  FileDescriptor folder = FileDescriptor(-1);
  FileDescriptor file = FileDescriptor(-1);
  std::string name = {};
  struct stat state = {};
};

/// Opens the file that a path leads to, after all symbolic links, and locks it. If another run
/// holds the lock, waits for it, at most this long. The state is the one after the waiting. A file
/// that is not regular is opened, but not locked. Throws Trouble when the file cannot be opened or
/// locked.
FileOrigin open_for_replacing(const std::string& path, std::chrono::milliseconds patience);

/// Returns whether two states are those of the same file with, as far as the system can tell, the
/// same content: device, inode, size, and the times of the last change of content and of state.
bool is_same_state(const struct stat& left, const struct stat& right);

}  // namespace kelp::input::quill::tool

#endif  // KELP_INPUT_QUILL_TOOL_FILES_FILE_ORIGIN_HPP
