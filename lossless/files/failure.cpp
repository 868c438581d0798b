#include "files/failure.hpp"

#include <sys/stat.h>

#include <cerrno>

namespace kelp::input::quill::lossless {

namespace {

using Kind = FileFailure::Kind;

bool is_symbolic_link(const std::string& path) {
  struct stat state {};
  return lstat(path.c_str(), &state) == 0 && S_ISLNK(state.st_mode);
}

}  // namespace

void fail(Kind kind, int system_code) {
  FileFailure failure;
  failure.kind = kind;
  failure.system_code = system_code;
  throw FileError({}, failure);
}

FileType type_of(unsigned mode) {
  if (S_ISDIR(mode)) return FileType::Folder;
  if (S_ISFIFO(mode)) return FileType::Pipe;
  if (S_ISSOCK(mode)) return FileType::Socket;
  return FileType::Device;
}

FileFailure find_open_failure(const std::string& path, int error) {
  FileFailure failure;
  // The links in /dev/fd lead to open files without a name. A shell passes pipes in this way.
  struct stat state {};
  if (stat(path.c_str(), &state) == 0 && !S_ISREG(state.st_mode)) {
    failure.kind = Kind::NotRegular;
    failure.type = type_of(state.st_mode);
  } else if (error == ENOENT && is_symbolic_link(path)) {
    failure.kind = Kind::DanglingLink;
  } else {
    failure.kind = Kind::NotOpened;
    failure.system_code = error;
  }
  return failure;
}

}  // namespace kelp::input::quill::lossless
