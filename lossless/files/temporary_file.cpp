#include "files/temporary_file.hpp"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <random>
#include <string_view>
#include <utility>

#include "files/failure.hpp"

namespace kelp::input::quill::lossless {

namespace {

using Kind = FileFailure::Kind;

constexpr int digits_of_name = 16;

/// The name does not contain that of the target, which may already have the longest allowed length.
std::string random_name() {
  constexpr std::string_view hexadecimal_digits = "0123456789abcdef";
  std::random_device random;
  std::string name = ".quill-inp.";
  for (int i = 0; i < digits_of_name; ++i) name += hexadecimal_digits[random() % 16];
  return name;
}

constexpr int most_tries = 100;

int create_new_file(int folder, std::string& name, mode_t mode) {
  for (int i = 0; i < most_tries; ++i) {
    name = random_name();
    const int file = open_in(folder, name, O_RDWR | O_CREAT | O_EXCL | O_NOFOLLOW, mode);
    if (file >= 0 || errno != EEXIST) return file;
  }
  return -1;
}

[[noreturn]] void fail_to_back_up(const std::string& name, int error) {
  FileFailure failure;
  failure.kind = Kind::BackupNotMade;
  failure.system_code = error;
  failure.backup = name;
  throw FileError({}, failure);
}

}  // namespace

TemporaryFile::TemporaryFile(int folder, UnfinishedFiles* observer, mode_t mode)
    : folder_(folder), observer_(observer), file_(-1) {
  const Step step(observer_);
  std::string chosen;
  const int number = create_new_file(folder, chosen, mode);
  if (number < 0) fail(Kind::NotCreated, errno);
  name_.emplace(folder, std::move(chosen), observer_);
  file_ = FileDescriptor(number);
}

void TemporaryFile::take_place_of(const std::string& name) {
  const Step step(observer_);
  if (renameat(folder_, name_->text().c_str(), folder_, name.c_str()) != 0)
    fail(Kind::NotReplaced, errno);
  name_->keep();
}

bool TemporaryFile::take_free_name(const std::string& name) {
  // A link is made in one step or not at all, and never replaces a file. The temporary name is
  // removed with this object.
  if (linkat(folder_, name_->text().c_str(), folder_, name.c_str(), 0) == 0) return true;
  if (errno == EEXIST) return false;
  if (errno != EPERM && errno != ENOTSUP) fail_to_back_up(name, errno);
  // Some file systems have no links. There, a check of the name before the rename has to suffice.
  struct stat state {};
  if (fstatat(folder_, name.c_str(), &state, AT_SYMLINK_NOFOLLOW) == 0) return false;
  take_place_of(name);
  return true;
}

}  // namespace kelp::input::quill::lossless
