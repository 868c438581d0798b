#ifndef KELP_INPUT_QUILL_TOOL_FILES_SAFE_WRITE_HPP
#define KELP_INPUT_QUILL_TOOL_FILES_SAFE_WRITE_HPP

// Replaces the text of a file by a new one. At every moment, even if the program fails or is
// killed, the file holds either the whole old text or the whole new text.
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
  /// A suffix for the name of the file, which gives the name of a copy of the old text. There is no
  /// copy without a suffix, or if the file keeps the old text.
  std::optional<std::string> backup_suffix = std::nullopt;
  /// Whether a file with several names may be replaced. Its other names keep the old text.
  bool breaks_hard_links = false;
};

/// Replaces the content of the file that `old_text` was read from. If the new text is the same,
/// nothing is done. The new text is written to a temporary file in the same folder, which gets the
/// access rights and attributes of the old file as far as possible. It is flushed to disk, read
/// back, and renamed if the old file is still the one that was read.
///
/// Returns which access rights and attributes of the file could not be kept. Throws Trouble on any
/// failure; the file then holds the old text, or, if the message says so, the new one.
std::vector<std::string> replace_content(const FileOrigin& origin, std::string_view old_text,
                                         std::string_view new_text, const ReplaceOptions& options);

}  // namespace kelp::input::quill::tool

#endif  // KELP_INPUT_QUILL_TOOL_FILES_SAFE_WRITE_HPP
