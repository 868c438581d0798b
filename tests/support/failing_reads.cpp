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
  std::size_t special = 0;
  int error = 0;
  std::function<void()> event = nullptr;
};

Reads reads_of_the_program;

}  // namespace

ReadWindow::ReadWindow(std::size_t failing, int error) noexcept {
  reads_of_the_program = {true, 0, failing, error, nullptr};
}

ReadWindow::ReadWindow(std::size_t call, std::function<void()> event) noexcept {
  reads_of_the_program = {true, 0, call, 0, std::move(event)};
}

ReadWindow::~ReadWindow() { reads_of_the_program.is_window_open = false; }

std::size_t ReadWindow::reads() const noexcept { return reads_of_the_program.count; }

}  // namespace kelp::input::quill

/// Takes the place of the C library's, for the standard library too.
extern "C" ssize_t read(int file, void* buffer, std::size_t size) {
  auto& reads = kelp::input::quill::reads_of_the_program;
  if (reads.is_window_open) {
    if (++reads.count == reads.special) {
      if (reads.event == nullptr) {
        errno = reads.error;
        return -1;
      }
      reads.event();
    }
    size = std::min(size, kelp::input::quill::most_bytes);
  }
  return syscall(SYS_read, file, buffer, size);
}
