#ifndef KELP_INPUT_QUILL_TOOL_FILES_WRITTEN_FILES_HPP
#define KELP_INPUT_QUILL_TOOL_FILES_WRITTEN_FILES_HPP

// The safe writing of the library for front ends, as this program uses it: with its list of
// unfinished files, and with Trouble in its words.

#include <string>
#include <string_view>
#include <vector>

#include "kelp/input/quill/lossless/file_replacement.hpp"
#include "kelp/input/quill/lossless/whole_file.hpp"
#include "quill-inp/process/trouble.hpp"

namespace kelp::input::quill::tool {

/// Opens, locks and reads a file. Throws Trouble when that fails, of a folder FolderTrouble.
lossless::FileToReplace open_for_replacing(const std::string& path,
                                           const lossless::OpenOptions& options);

/// Replaces its text. Returns what of the file could not be kept, one sentence each. Throws Trouble
/// on any failure; the file then holds the old text, or, if the message says so, the new one.
std::vector<std::string> replace_text(lossless::FileToReplace& file, std::string_view text,
                                      lossless::ReplaceOptions options);

/// What was done: whether the file was written, and what of an old one could not be kept.
struct WrittenFile {
  bool is_written = false;
  std::vector<std::string> notes = {};
};

/// Writes a file that need not be there. Throws Trouble on any failure.
WrittenFile write_file(const std::string& path, std::string_view text,
                       lossless::ExistingFile existing,
                       lossless::FolderFlush flush = lossless::FolderFlush::Now);

/// Waits until the names in a folder are on disk. Throws Trouble on any failure.
void flush_folder(const std::string& path);

}  // namespace kelp::input::quill::tool

#endif  // KELP_INPUT_QUILL_TOOL_FILES_WRITTEN_FILES_HPP
