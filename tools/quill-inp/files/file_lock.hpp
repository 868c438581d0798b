#ifndef KELP_INPUT_QUILL_TOOL_FILES_FILE_LOCK_HPP
#define KELP_INPUT_QUILL_TOOL_FILES_FILE_LOCK_HPP

#include <chrono>

namespace kelp::input::quill::tool {

/// Locks an open file against other runs of this program, and against other threads that have
/// opened it, too. The lock lasts until the file is closed, also if the program is killed. Waits
/// for the lock until the deadline; `patience` is the whole time that it may wait. Does nothing if
/// the file system has no locks. Throws Trouble when the deadline has passed, and when the system
/// fails.
void wait_for_lock(int file, std::chrono::steady_clock::time_point deadline,
                   std::chrono::milliseconds patience);

}  // namespace kelp::input::quill::tool

#endif  // KELP_INPUT_QUILL_TOOL_FILES_FILE_LOCK_HPP
