#include "quill-inp/files/file_lock.hpp"

#include <sys/file.h>

#include <algorithm>
#include <cerrno>
#include <string>
#include <thread>

#include "quill-inp/process/trouble.hpp"
#include "quill-inp/text/counted.hpp"

namespace kelp::input::quill::tool {

namespace {

using std::chrono::milliseconds;

constexpr milliseconds shortest_pause(1);
constexpr milliseconds longest_pause(20);

/// Network file systems may have no locks, or none for a file that is open for reading only.
bool means_no_locks(int error) {
  return error == ENOLCK || error == ENOTSUP || error == EBADF || error == EINVAL ||
         error == ENOSYS;
}

[[noreturn]] void throw_impatient(milliseconds patience) {
  const auto seconds = std::chrono::duration_cast<std::chrono::seconds>(patience).count();
  throw Trouble("another run of quill-inp is changing it; waited " +
                counted(static_cast<std::uint64_t>(seconds), "second") + ", see --lock-timeout");
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
    if (errno != EWOULDBLOCK) throw_system_trouble("cannot be locked", errno);
    if (std::chrono::steady_clock::now() >= deadline) throw_impatient(patience);
    std::this_thread::sleep_for(pause);
    pause = std::min(pause * 2, longest_pause);
  }
}

}  // namespace kelp::input::quill::tool
