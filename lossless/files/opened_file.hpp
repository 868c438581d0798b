#ifndef KELP_INPUT_QUILL_LOSSLESS_FILES_OPENED_FILE_HPP
#define KELP_INPUT_QUILL_LOSSLESS_FILES_OPENED_FILE_HPP

#include <sys/stat.h>

#include <chrono>
#include <optional>
#include <string>

#include "files/file_descriptor.hpp"
#include "kelp/input/quill/lossless/file_replacement.hpp"

namespace kelp::input::quill::lossless {

/// The file that a text is read from and that is then to be replaced, with its state before it was
/// read. Folder and file are open, and `name`, which is not a symbolic link, is the file's name in
/// the folder. So renaming a folder in its path puts no other file in its place, and the length of
/// the path does not matter. As long as the object lives, other programs that want to replace the
/// file have to wait.
struct OpenedFile {
  std::string path = {};
  FileDescriptor folder = FileDescriptor(-1);
  FileDescriptor file = FileDescriptor(-1);
  std::string name = {};
  struct stat state = {};
  std::string text = {};
  bool is_text_taken = false;
  bool is_replaced = false;
};

/// Opens the file that a path leads to, after all symbolic links, and locks it. If another program
/// holds the lock, waits for it, at most this long. The state is the one after the waiting. Throws
/// FileError when the file cannot be opened or locked, and for a file that is not regular.
OpenedFile open_and_lock(const std::string& path, std::chrono::milliseconds patience);

/// Reads the text of the file, of at most `limit` bytes. Throws FileError when that fails, when the
/// file is larger, and when it changes meanwhile.
std::string read_opened(const OpenedFile& file, std::uint64_t limit);

}  // namespace kelp::input::quill::lossless

#endif  // KELP_INPUT_QUILL_LOSSLESS_FILES_OPENED_FILE_HPP
