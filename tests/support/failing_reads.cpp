#include "support/failing_reads.hpp"

#include <sys/syscall.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <utility>

namespace kelp::input::quill {

namespace {

constexpr std::size_t most_bytes = 1000;

struct Reads {
  bool is_window_open = false;
  std::size_t count = 0;
  std::size_t failing = 0;
  int error = 0;
  std::function<void()> action = {};
};

Reads reads_of_the_program;

}  // namespace

ReadWindow::ReadWindow(std::size_t failing, int error) noexcept {
  reads_of_the_program = {true, 0, failing, error, {}};
}

ReadWindow::ReadWindow(std::function<void()> action) {
  reads_of_the_program = {true, 0, 0, 0, std::move(action)};
}

ReadWindow::~ReadWindow() { reads_of_the_program.is_window_open = false; }

std::size_t ReadWindow::reads() const noexcept { return reads_of_the_program.count; }

}  // namespace kelp::input::quill

/// Takes the place of the C library's, for the standard library too.
extern "C" ssize_t read(int file, void* buffer, std::size_t size) {
  auto& reads = kelp::input::quill::reads_of_the_program;
  if (reads.is_window_open) {
    ++reads.count;
    if (reads.count == 1 && reads.action) reads.action();
    if (reads.count == reads.failing) {
      errno = reads.error;
      return -1;
    }
    size = std::min(size, kelp::input::quill::most_bytes);
  }
  return syscall(SYS_read, file, buffer, size);
}
