#ifndef KELP_INPUT_QUILL_LOSSLESS_FILES_FILE_LOCK_HPP
#define KELP_INPUT_QUILL_LOSSLESS_FILES_FILE_LOCK_HPP

#include <chrono>

namespace kelp::input::quill::lossless {

/// Locks an open file against other programs that lock it too, and against other threads that
/// have opened it. The lock lasts until the file is closed, also if the program is killed. Waits
/// for the lock until the deadline; `patience` is the whole time that it may wait. Does
/// nothing where the file system has no locks. Throws FileError when the deadline has passed, and
/// when the system fails.
void wait_for_lock(int file, std::chrono::steady_clock::time_point deadline,
                   std::chrono::milliseconds patience);

}  // namespace kelp::input::quill::lossless

#endif  // KELP_INPUT_QUILL_LOSSLESS_FILES_FILE_LOCK_HPP
