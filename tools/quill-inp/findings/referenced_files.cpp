#include "quill-inp/findings/referenced_files.hpp"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <utility>

#include "files/file_descriptor.hpp"
#include "lint/xyz_frame.hpp"
#include "quill-inp/process/trouble.hpp"

namespace kelp::input::quill::tool {

namespace {

using State = lint::ReferencedFile::State;

constexpr std::uint64_t first_piece = std::uint64_t{256} * 1024;

std::string joined(const std::string& folder, const std::string& path) {
  return folder.empty() || path.substr(0, 1) == "/" ? path : folder + "/" + path;
}

lint::ReferencedFile unreadable(std::string reason) {
  return {State::Unreadable, std::move(reason), {}};
}

lint::ReferencedFile too_large() { return unreadable("it is too large, see --max-size"); }

/// Reads a short file, or as much of a longer one that it has more bytes than the first piece.
std::string read_beginning(const lossless::FileDescriptor& file, std::uint64_t limit,
                           std::uint64_t size) {
  return lossless::read_to_end(file.number(), std::min(limit, first_piece),
                               std::min(size, first_piece));
}

/// A language server looks at the same file after every change of a text. Only the first frame
/// counts, so the rest of a long trajectory is not read.
lint::ReferencedFile read_open_file(const lossless::FileDescriptor& file, std::uint64_t limit) {
  const struct stat state = lossless::state_of(file.number());
  if (S_ISDIR(state.st_mode)) return unreadable("it is a folder");
  if (!S_ISREG(state.st_mode)) return unreadable("it is not a regular file");
  const auto size = static_cast<std::uint64_t>(state.st_size);
  if (size > limit) return too_large();
  std::string content = read_beginning(file, limit, size);
  if (content.size() > first_piece && !lint::has_whole_first_frame(content)) {
    lseek(file.number(), 0, SEEK_SET);
    content = lossless::read_to_end(file.number(), limit, size);
  }
  if (content.size() > limit) return too_large();
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
