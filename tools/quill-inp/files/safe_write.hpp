#ifndef KELP_INPUT_QUILL_TOOL_FILES_SAFE_WRITE_HPP
#define KELP_INPUT_QUILL_TOOL_FILES_SAFE_WRITE_HPP

// Putting a new text in place of the one that was read, so that at no moment, whatever fails or
// kills the program, the file holds anything but the whole old or the whole new text.
//
//   for (const std::string& note : replace_content(origin, old_text, new_text, {})) report(note);

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "quill-inp/files/file_origin.hpp"

namespace kelp::input::quill::tool {

/// How to replace a file.
struct ReplaceOptions {
  /// What to append to the name of the file for that of a copy of the old text; no copy without it,
  /// nor where the file keeps the old text.
  std::optional<std::string> backup_suffix = std::nullopt;
  /// Whether a file with several names may be replaced, which leaves the others with the old text.
  bool breaks_hard_links = false;
};

/// Replaces the content of the file that `old_text` was read from, unless it is the same bytes:
/// then nothing is touched. The new text is written to a temporary file in the folder of the file,
/// which gets its owner, group and permission bits as far as possible, is flushed to disk, read
/// back, and renamed, provided that the file is still the one that was read.
///
/// Returns what of the file's access rights could not be kept. Throws Trouble on any failure; the
/// file then holds the old text, or, if the text says so, the new one.
std::vector<std::string> replace_content(const FileOrigin& origin, std::string_view old_text,
                                         std::string_view new_text, const ReplaceOptions& options);

}  // namespace kelp::input::quill::tool

#endif  // KELP_INPUT_QUILL_TOOL_FILES_SAFE_WRITE_HPP
