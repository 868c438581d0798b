#ifndef KELP_INPUT_QUILL_TOOL_BATCH_FILE_HEADER_HPP
#define KELP_INPUT_QUILL_TOOL_BATCH_FILE_HEADER_HPP

#include <sys/types.h>

#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "kelp/input/quill/document.hpp"

namespace kelp::input::quill::tool {

/// The commands of an input, and which file it is: its device and its number there.
struct FileHeader {
  std::vector<HeaderCommand> commands;
  std::pair<dev_t, ino_t> identity;
};

/// Reads the header of a regular file, at most its first 64 KiB, since a file may contain anything.
/// Returns nothing for any other file, and for one that cannot be read.
std::optional<FileHeader> read_header(const std::string& path);

}  // namespace kelp::input::quill::tool

#endif  // KELP_INPUT_QUILL_TOOL_BATCH_FILE_HEADER_HPP
