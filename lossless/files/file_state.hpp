#ifndef KELP_INPUT_QUILL_LOSSLESS_FILES_FILE_STATE_HPP
#define KELP_INPUT_QUILL_LOSSLESS_FILES_FILE_STATE_HPP

#include <sys/stat.h>

namespace kelp::input::quill::lossless {

/// Returns whether two states are those of the same file with, as far as the system can tell, the
/// same content: device, inode, size, and the times of the last change of content and of state.
bool is_same_state(const struct stat& left, const struct stat& right);

}  // namespace kelp::input::quill::lossless

#endif  // KELP_INPUT_QUILL_LOSSLESS_FILES_FILE_STATE_HPP
