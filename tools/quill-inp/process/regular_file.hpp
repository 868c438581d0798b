#ifndef KELP_INPUT_QUILL_TOOL_PROCESS_REGULAR_FILE_HPP
#define KELP_INPUT_QUILL_TOOL_PROCESS_REGULAR_FILE_HPP

#include <sys/types.h>

#include <cstdint>
#include <optional>
#include <string>
#include <utility>

namespace kelp::input::quill::tool {

/// The beginning of a file, and which file that is: its device and its number there.
struct FileBeginning {
  std::string text;
  std::pair<dev_t, ino_t> identity;
};

/// Reads the first `limit` bytes of a regular file and one more, if it has them. Returns nothing
/// for any other file, and for one that cannot be read. Does not open a pipe, because that would
/// let its writer begin, which would then lose its reader.
std::optional<FileBeginning> read_beginning(const std::string& path, std::uint64_t limit);

}  // namespace kelp::input::quill::tool

#endif  // KELP_INPUT_QUILL_TOOL_PROCESS_REGULAR_FILE_HPP
