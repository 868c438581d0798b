#include "quill-inp/findings/referenced_files.hpp"

#include <fcntl.h>
#include <sys/stat.h>

#include <cerrno>
#include <utility>

#include "files/file_descriptor.hpp"
#include "quill-inp/process/trouble.hpp"

namespace kelp::input::quill::tool {

namespace {

using State = lint::ReferencedFile::State;

std::string joined(const std::string& folder, const std::string& path) {
  return folder.empty() || path.substr(0, 1) == "/" ? path : folder + "/" + path;
}

lint::ReferencedFile unreadable(std::string reason) {
  return {State::Unreadable, std::move(reason), {}};
}

lint::ReferencedFile read_open_file(const lossless::FileDescriptor& file, std::uint64_t limit) {
  const struct stat state = lossless::state_of(file.number());
  if (S_ISDIR(state.st_mode)) return unreadable("it is a folder");
  if (!S_ISREG(state.st_mode)) return unreadable("it is not a regular file");
  std::string content =
      lossless::read_to_end(file.number(), limit, static_cast<std::uint64_t>(state.st_size));
  if (content.size() > limit) return unreadable("it is too large, see --max-size");
  return {State::Read, {}, std::move(content)};
}

}  // namespace

lint::ReferencedFile find_referenced_file(const std::string& folder, const std::string& path,
                                          std::uint64_t limit) {
  if (path.find('\0') != std::string::npos) return {};
  // Not blocking, so that a pipe without a writer is refused at once.
  const lossless::FileDescriptor file(
      lossless::open_in(AT_FDCWD, joined(folder, path), O_RDONLY | O_NONBLOCK));
  const int error = errno;
  if (file.number() < 0 && (error == ENOENT || error == ENOTDIR)) return {};
  if (file.number() < 0) return unreadable(system_message(error));
  try {
    return read_open_file(file, limit);
  } catch (const lossless::FileError& failed) {
    return unreadable(failed.what());
  }
}

}  // namespace kelp::input::quill::tool
