#include "quill-inp/files/flush.hpp"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>

#include "quill-inp/process/file_descriptor.hpp"
#include "quill-inp/process/trouble.hpp"

namespace kelp::input::quill::tool {

void flush_file(int file, const char* what) {
  while (fsync(file) != 0) {
    if (errno != EINTR)
      throw_system_trouble(std::string(what) + " cannot be flushed to disk", errno);
  }
}

void flush_folder(int folder) {
  while (fsync(folder) != 0) {
    if (errno == EINVAL || errno == ENOTSUP) return;
    if (errno != EINTR)
      throw_system_trouble("holds the new text, but the folder cannot be flushed to disk", errno);
  }
}

void flush_folder(const std::string& path) {
  const FileDescriptor folder(open_in(AT_FDCWD, path, O_RDONLY | O_DIRECTORY));
  if (folder.number() < 0) throw_system_trouble("the folder cannot be opened", errno);
  flush_folder(folder.number());
}

}  // namespace kelp::input::quill::tool
