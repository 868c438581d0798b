#ifndef KELP_INPUT_QUILL_TOOL_FILES_WHOLE_FILE_HPP
#define KELP_INPUT_QUILL_TOOL_FILES_WHOLE_FILE_HPP

// Writes a file that need not exist yet. At every moment, even if the program is killed, there is
// either no file, or the whole text that was there before, or the whole new text.

#include <string>
#include <string_view>
#include <vector>

namespace kelp::input::quill::tool {

/// What to do about a file that already exists and holds another text.
enum class ExistingFile { IsRefused, IsReplaced };

/// Whether to wait until the name of a new file is on disk, or to leave that to the caller, who
/// writes many files in one folder.
enum class FolderFlush { Now, ByCaller };

/// What was done: whether the file was written, and which access rights of an old file could not be
/// kept. A file that holds the text already is not written.
struct WrittenFile {
  bool is_written = false;
  std::vector<std::string> notes = {};
};

/// Writes a file. A new one gets the access rights that the system gives new files. It has no name
/// until it is complete, where the system can do that, so that nothing is left of it if the program
/// is killed. An old file is replaced as replace_content() does. Throws Trouble on any failure.
WrittenFile write_whole_file(const std::string& path, std::string_view text, ExistingFile existing,
                             FolderFlush flush = FolderFlush::Now);

/// Returns the folder of a path: "." for a name alone.
std::string folder_of_path(const std::string& path);

}  // namespace kelp::input::quill::tool

#endif  // KELP_INPUT_QUILL_TOOL_FILES_WHOLE_FILE_HPP
