#ifndef KELP_INPUT_QUILL_TOOL_FILES_FILE_ORIGIN_HPP
#define KELP_INPUT_QUILL_TOOL_FILES_FILE_ORIGIN_HPP

#include <sys/stat.h>

#include <string>

namespace kelp::input::quill::tool {

/// The file that a text was read from, with all symbolic links in its path resolved, and its state
/// before it was read.
struct FileOrigin {
  std::string folder = {};
  std::string name = {};
  struct stat state = {};
};

/// Returns whether two states are those of the same file with, as far as the system can tell, the
/// same content: device, inode, size, and the times of the last change of content and of state.
bool is_same_state(const struct stat& left, const struct stat& right);

}  // namespace kelp::input::quill::tool

#endif  // KELP_INPUT_QUILL_TOOL_FILES_FILE_ORIGIN_HPP
