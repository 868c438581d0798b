#ifndef KELP_INPUT_QUILL_LOSSLESS_FILES_FLUSH_HPP
#define KELP_INPUT_QUILL_LOSSLESS_FILES_FLUSH_HPP

namespace kelp::input::quill::lossless {

/// Waits until the content of an open temporary file is on disk. Throws FileError when it fails.
void flush_file(int file);

/// Waits until the names in an open folder are on disk: a new name is there only when its folder
/// is. Some file systems cannot flush folders. Throws FileError when it fails.
void flush_folder(int folder);

}  // namespace kelp::input::quill::lossless

#endif  // KELP_INPUT_QUILL_LOSSLESS_FILES_FLUSH_HPP
