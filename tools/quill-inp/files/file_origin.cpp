#include "quill-inp/files/file_origin.hpp"

#include <fcntl.h>

#include <cerrno>
#include <utility>

#include "quill-inp/files/file_lock.hpp"
#include "quill-inp/files/file_place.hpp"
#include "quill-inp/process/trouble.hpp"

namespace kelp::input::quill::tool {

namespace {

bool is_same_time(const struct timespec& left, const struct timespec& right) {
  return left.tv_sec == right.tv_sec && left.tv_nsec == right.tv_nsec;
}

/// Returns whether the open file with this state still has its name.
bool has_its_name(const FilePlace& place, const struct stat& state) {
  struct stat named {};
  if (fstatat(place.folder.number(), place.name.c_str(), &named, AT_SYMLINK_NOFOLLOW) == 0)
    return named.st_dev == state.st_dev && named.st_ino == state.st_ino;
  if (errno != ENOENT) throw_system_trouble("cannot be examined", errno);
  return false;
}

/// Not blocking, so that a pipe without a writer is refused at once. If the file was replaced by a
/// link, the link is not followed.
FileDescriptor open_in_place(const FilePlace& place, const std::string& path) {
  FileDescriptor file(
      open_in(place.folder.number(), place.name, O_RDONLY | O_NONBLOCK | O_NOFOLLOW));
  if (file.number() < 0) throw_cannot_open(path, errno, Purpose::Replacing);
  return file;
}

}  // namespace

FileOrigin open_for_replacing(const std::string& path, std::chrono::milliseconds patience) {
  FilePlace place = find_place(path);
  const auto deadline = std::chrono::steady_clock::now() + patience;
  // The process that held the lock replaced this file by another one, which then has to be read.
  for (;;) {
    FileDescriptor file = open_in_place(place, path);
    struct stat state = state_of(file.number());
    if (S_ISREG(state.st_mode)) {
      wait_for_lock(file.number(), deadline, patience);
      state = state_of(file.number());
    }
    if (!S_ISREG(state.st_mode) || has_its_name(place, state))
      return {std::move(place.folder), std::move(file), std::move(place.name), state};
  }
}

bool is_same_state(const struct stat& left, const struct stat& right) {
  return left.st_dev == right.st_dev && left.st_ino == right.st_ino &&
         left.st_size == right.st_size && is_same_time(left.st_mtim, right.st_mtim) &&
         is_same_time(left.st_ctim, right.st_ctim);
}

}  // namespace kelp::input::quill::tool
