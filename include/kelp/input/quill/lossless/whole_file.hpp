#ifndef KELP_INPUT_QUILL_LOSSLESS_WHOLE_FILE_HPP
#define KELP_INPUT_QUILL_LOSSLESS_WHOLE_FILE_HPP

/// @file
/// Writes a file that need not be there yet. At every moment, even if the program is killed, there
/// is either no file, or the whole text that was there before, or the whole new text.
///
///     // Throws FileError if there is a file with another text.
///     write_whole_file("job.qin", "#opt\n\n0 1\nHe 0 0 0\n");
///
/// These functions are not offered on Windows.

#include <chrono>
#include <string>
#include <string_view>
#include <vector>

#include "kelp/input/quill/lossless/export.hpp"
#include "kelp/input/quill/lossless/file_error.hpp"
#include "kelp/input/quill/lossless/file_replacement.hpp"

namespace kelp::input::quill::lossless {

/// What to do about a file that is there already and holds another text.
enum class ExistingFile { IsRefused, IsReplaced };

/// Whether to wait until the name of a new file is on disk, or to leave that to the caller, who
/// writes many files in one folder and then calls flush_folder().
enum class FolderFlush { Now, ByCaller };

/// How to write a file.
struct WriteOptions {
  ExistingFile existing = ExistingFile::IsRefused;  ///< what becomes of a file that is there
  FolderFlush flush = FolderFlush::Now;             ///< whether the folder is flushed
  /// How long to wait for other programs that are replacing the file.
  std::chrono::milliseconds patience = std::chrono::seconds(60);
  UnfinishedFiles* unfinished = nullptr;  ///< who is told of temporary files, or nobody
};

/// What was done.
struct WrittenFile {
  bool is_written = false;               ///< false for a file that held the text already
  std::vector<LostAttribute> lost = {};  ///< what of an old file could not be kept
};

/// Writes a file. A new one gets the access rights that the system gives new files. It has no name
/// until it is complete, where the system can do that, so that nothing is left of it if the program
/// is killed. An old file is replaced as FileToReplace::replace() does; one with several names is
/// refused. Throws FileError on any failure; an old file then holds its old text, unless the error
/// says that the folder could not be flushed.
KELP_QUILL_LOSSLESS_EXPORT WrittenFile write_whole_file(const std::string& path,
                                                        std::string_view text,
                                                        const WriteOptions& options = {});

/// Waits until the names in a folder are on disk. Does nothing on file systems that cannot do that.
/// Throws FileError when it fails.
KELP_QUILL_LOSSLESS_EXPORT void flush_folder(const std::string& path);

/// Returns the folder of a path: "." for a name alone.
KELP_QUILL_LOSSLESS_EXPORT std::string folder_of_path(const std::string& path);

}  // namespace kelp::input::quill::lossless

#endif  // KELP_INPUT_QUILL_LOSSLESS_WHOLE_FILE_HPP
