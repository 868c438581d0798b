#include "files/opened_file.hpp"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <utility>

#include "files/failure.hpp"
#include "files/file_lock.hpp"
#include "files/file_place.hpp"
#include "files/file_state.hpp"

namespace kelp::input::quill::lossless {

namespace {

using Kind = FileFailure::Kind;

/// Returns whether the open file with this state still has its name.
bool has_its_name(const FilePlace& place, const struct stat& state) {
  struct stat named {};
  if (fstatat(place.folder.number(), place.name.c_str(), &named, AT_SYMLINK_NOFOLLOW) == 0)
    return named.st_dev == state.st_dev && named.st_ino == state.st_ino;
  if (errno != ENOENT) fail(Kind::NotExamined, errno);
  return false;
}

/// Not blocking, so that a pipe without a writer is refused at once. If the file was replaced by a
/// link, the link is not followed.
FileDescriptor open_in_place(const FilePlace& place, const std::string& path) {
  FileDescriptor file(
      open_in(place.folder.number(), place.name, O_RDONLY | O_NONBLOCK | O_NOFOLLOW));
  if (file.number() < 0) throw FileError({}, find_open_failure(path, errno));
  return file;
}

void require_regular(const struct stat& state) {
  if (S_ISREG(state.st_mode)) return;
  FileFailure failure;
  failure.kind = Kind::NotRegular;
  failure.type = type_of(state.st_mode);
  throw FileError({}, failure);
}

[[noreturn]] void fail_too_large(std::uint64_t limit) {
  FileFailure failure;
  failure.kind = Kind::TooLarge;
  failure.number = limit;
  throw FileError({}, failure);
}

}  // namespace

OpenedFile open_and_lock(const std::string& path, std::chrono::milliseconds patience) {
  FilePlace place = find_place(path);
  const auto deadline = std::chrono::steady_clock::now() + patience;
  // The process that held the lock replaced this file by another one, which then has to be read.
  for (;;) {
    FileDescriptor file = open_in_place(place, path);
    require_regular(state_of(file.number()));
    wait_for_lock(file.number(), deadline, patience);
    const struct stat state = state_of(file.number());
    if (has_its_name(place, state))
      return {path, std::move(place.folder), std::move(file), std::move(place.name), state};
  }
}

std::string read_opened(const OpenedFile& file, std::uint64_t limit) {
  const auto size = static_cast<std::uint64_t>(file.state.st_size);
  if (size > limit) fail_too_large(limit);
  std::string text = read_to_end(file.file.number(), limit, size);
  if (text.size() > limit) fail_too_large(limit);
  if (!is_same_state(file.state, state_of(file.file.number()))) fail(Kind::ChangedWhileRead);
  return text;
}

}  // namespace kelp::input::quill::lossless
