#include "files/file_lock.hpp"

#include <sys/file.h>

#include <algorithm>
#include <cerrno>
#include <thread>

#include "files/failure.hpp"

namespace kelp::input::quill::lossless {

namespace {

using std::chrono::milliseconds;

constexpr milliseconds shortest_pause(1);
constexpr milliseconds longest_pause(20);

/// Network file systems may have no locks, or none for a file that is open for reading only.
bool means_no_locks(int error) {
  return error == ENOLCK || error == ENOTSUP || error == EBADF || error == EINVAL ||
         error == ENOSYS;
}

[[noreturn]] void fail_impatient(milliseconds patience) {
  FileFailure failure;
  failure.kind = FileFailure::Kind::Locked;
  failure.waited = patience;
  throw FileError({}, failure);
}

}  // namespace

void wait_for_lock(int file, std::chrono::steady_clock::time_point deadline,
                   milliseconds patience) {
  // No system call waits for a limited time, and a signal that ends the waiting could reach other
  // threads.
  milliseconds pause = shortest_pause;
  while (flock(file, LOCK_EX | LOCK_NB) != 0) {
    if (means_no_locks(errno)) return;
    if (errno == EINTR) continue;
    if (errno != EWOULDBLOCK) fail(FileFailure::Kind::NotLocked, errno);
    if (std::chrono::steady_clock::now() >= deadline) fail_impatient(patience);
    std::this_thread::sleep_for(pause);
    pause = std::min(pause * 2, longest_pause);
  }
}

}  // namespace kelp::input::quill::lossless
