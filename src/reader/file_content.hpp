#ifndef KELP_INPUT_QUILL_READER_FILE_CONTENT_HPP
#define KELP_INPUT_QUILL_READER_FILE_CONTENT_HPP

#include <optional>
#include <string>

namespace kelp::input::quill {

/// Returns everything in the file at `path`, opened as a text stream, or nothing when it cannot be
/// opened or reading fails before the end.
std::optional<std::string> read_file_content(const std::string& path);

}  // namespace kelp::input::quill

#endif  // KELP_INPUT_QUILL_READER_FILE_CONTENT_HPP
