#include "quill-inp/files/temporary_file.hpp"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <random>
#include <utility>

#include "quill-inp/process/held_signals.hpp"
#include "quill-inp/process/trouble.hpp"
#include "quill-inp/text/hexadecimal.hpp"

namespace kelp::input::quill::tool {

namespace {

/// The name does not contain that of the target, which may already have the longest allowed length.
std::string random_name() {
  std::random_device random;
  std::string name = ".quill-inp.";
  for (int i = 0; i < 4; ++i) append_hexadecimal(name, random(), 4);
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

}  // namespace

TemporaryFile::TemporaryFile(int folder, mode_t mode) : folder_(folder), file_(-1) {
  const CaughtSignals caught;
  const HeldSignals held;
  std::string chosen;
  const int number = create_new_file(folder, chosen, mode);
  if (number < 0) throw_system_trouble("cannot create a temporary file in the same folder", errno);
  name_.emplace(folder, std::move(chosen));
  file_ = FileDescriptor(number);
}

void TemporaryFile::take_place_of(const std::string& name) {
  const HeldSignals held;
  if (renameat(folder_, name_->text().c_str(), folder_, name.c_str()) != 0)
    throw_system_trouble("cannot be replaced", errno);
  name_->keep();
}

bool TemporaryFile::take_free_name(const std::string& name) {
  // A link is made in one step or not at all, and never replaces a file. The temporary name is
  // removed with this object.
  if (linkat(folder_, name_->text().c_str(), folder_, name.c_str(), 0) == 0) return true;
  if (errno == EEXIST) return false;
  if (errno != EPERM && errno != ENOTSUP)
    throw_system_trouble("the backup '" + name + "' cannot be made", errno);
  // Some file systems have no links. There, a check of the name before the rename has to suffice.
  struct stat state {};
  if (fstatat(folder_, name.c_str(), &state, AT_SYMLINK_NOFOLLOW) == 0) return false;
  take_place_of(name);
  return true;
}

}  // namespace kelp::input::quill::tool
