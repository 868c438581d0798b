#include "files/file_place.hpp"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <climits>
#include <optional>
#include <utility>

#include "files/failure.hpp"

namespace kelp::input::quill::lossless {

namespace {

constexpr int most_links = 40;  // as many as the system follows

/// Returns the text of a symbolic link, or nothing if no link has this name.
std::optional<std::string> read_link(const FilePlace& place) {
  char text[PATH_MAX];
  const ssize_t size = readlinkat(place.folder.number(), place.name.c_str(), text, sizeof text);
  if (size < 0) return std::nullopt;
  return std::string(text, static_cast<std::size_t>(size));
}

/// Returns the folder and the name that a path relative to a folder ends with.
FilePlace split(int folder, const std::string& path, const std::string& whole_path) {
  const std::size_t slash = path.rfind('/');
  const std::string parent = slash == std::string::npos ? "." : path.substr(0, slash + 1);
  FileDescriptor opened(open_in(folder, parent, O_RDONLY | O_DIRECTORY));
  if (opened.number() < 0 && errno == EACCES) fail(FileFailure::Kind::FolderNotOpened, errno);
  if (opened.number() < 0) throw FileError({}, find_open_failure(whole_path, errno));
  std::string name = slash == std::string::npos ? path : path.substr(slash + 1);
  if (name.empty() && !path.empty()) name = ".";
  return {std::move(opened), std::move(name)};
}

}  // namespace

FilePlace find_place(const std::string& path) {
  if (path.find('\0') != std::string::npos) fail(FileFailure::Kind::NulInName);
  FilePlace place = split(AT_FDCWD, path, path);
  for (int links = 0; links <= most_links; ++links) {
    const std::optional<std::string> link = read_link(place);
    if (!link) return place;
    place = split(place.folder.number(), *link, path);
  }
  throw FileError({}, find_open_failure(path, ELOOP));
}

}  // namespace kelp::input::quill::lossless
