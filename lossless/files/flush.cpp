#include "files/flush.hpp"

#include <unistd.h>

#include <cerrno>

#include "files/failure.hpp"

namespace kelp::input::quill::lossless {

void flush_file(int file) {
  while (fsync(file) != 0) {
    if (errno != EINTR) fail(FileFailure::Kind::NewNotFlushed, errno);
  }
}

void flush_folder(int folder) {
  while (fsync(folder) != 0) {
    if (errno == EINVAL || errno == ENOTSUP) return;
    if (errno != EINTR) fail(FileFailure::Kind::FolderNotFlushed, errno);
  }
}

}  // namespace kelp::input::quill::lossless
