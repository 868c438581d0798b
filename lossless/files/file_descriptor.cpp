#include "files/file_descriptor.hpp"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>

#include "files/failure.hpp"

namespace kelp::input::quill::lossless {

FileDescriptor& FileDescriptor::operator=(FileDescriptor&& other) noexcept {
  if (this != &other) {
    close();
    number_ = std::exchange(other.number_, -1);
  }
  return *this;
}

FileDescriptor::~FileDescriptor() { close(); }

int FileDescriptor::close() {
  if (number_ < 0) return 0;
  // After EINTR the descriptor is closed, too, so a second try could close another file.
  const int result = ::close(std::exchange(number_, -1));
  return result == 0 || errno == EINTR ? 0 : errno;
}

int open_in(int folder, const std::string& name, int flags, unsigned mode) {
  for (;;) {
    const int file = openat(folder, name.c_str(), flags | O_CLOEXEC | O_NOCTTY, mode);
    if (file >= 0 || errno != EINTR) return file;
  }
}

struct stat state_of(int file, FileFailure::Kind failure) {
  struct stat state {};
  if (fstat(file, &state) != 0) fail(failure, errno);
  return state;
}

std::string read_to_end(int file, std::uint64_t limit, std::uint64_t expected) {
  std::string content;
  content.reserve(static_cast<std::size_t>(std::min(expected, limit)) + 1);
  while (content.size() <= limit) {
    const std::size_t size = content.size();
    const std::size_t prepared = content.capacity() - size;
    // The memory for a read is filled with zeros first. That takes longer than reading a small
    // file.
    const std::uint64_t wanted = prepared > 0 ? prepared - 1 : usual_chunk;
    const auto room = static_cast<std::size_t>(std::min(wanted, limit - size)) + 1;
    content.resize(size + room);
    const ssize_t count = read(file, content.data() + size, room);
    content.resize(size + (count > 0 ? static_cast<std::size_t>(count) : 0));
    if (count == 0) break;
    if (count < 0 && errno != EINTR) fail(FileFailure::Kind::NotRead, errno);
  }
  return content;
}

void write_everything(int file, std::string_view data) {
  while (!data.empty()) {
    const ssize_t count = write(file, data.data(), data.size());
    if (count < 0 && errno != EINTR) fail(FileFailure::Kind::NotWritable, errno);
    if (count > 0) data.remove_prefix(static_cast<std::size_t>(count));
  }
}

}  // namespace kelp::input::quill::lossless
