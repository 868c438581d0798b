#include "quill-inp/files/file_place.hpp"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <climits>
#include <optional>
#include <string_view>
#include <utility>

#include "quill-inp/process/trouble.hpp"

namespace kelp::input::quill::tool {

namespace {

constexpr int most_links = 40;  // as many as the system follows

std::string_view kind_of_file(mode_t mode) {
  if (S_ISDIR(mode)) return "a folder";
  if (S_ISFIFO(mode)) return "a pipe";
  if (S_ISSOCK(mode)) return "a socket";
  return "a device";
}

bool is_symbolic_link(const std::string& path) {
  struct stat state {};
  return lstat(path.c_str(), &state) == 0 && S_ISLNK(state.st_mode);
}

/// Returns the text of a symbolic link, or nothing if there is no link of this name.
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
  if (opened.number() < 0 && errno == EACCES)
    throw_system_trouble("the folder of the file cannot be opened", errno);
  if (opened.number() < 0) throw_cannot_open(whole_path, errno, Purpose::Replacing);
  std::string name = slash == std::string::npos ? path : path.substr(slash + 1);
  if (name.empty() && !path.empty()) name = ".";
  return {std::move(opened), std::move(name)};
}

}  // namespace

FilePlace find_place(const std::string& path) {
  if (path.find('\0') != std::string::npos) throw Trouble("a file name cannot hold a NUL byte");
  FilePlace place = split(AT_FDCWD, path, path);
  for (int links = 0; links <= most_links; ++links) {
    const std::optional<std::string> link = read_link(place);
    if (!link) return place;
    place = split(place.folder.number(), *link, path);
  }
  throw_cannot_open(path, ELOOP, Purpose::Replacing);
}

void throw_not_regular(unsigned mode, Purpose purpose) {
  const char* const advice =
      purpose == Purpose::Reading
          ? ", not a regular file; use '-' to read standard input"
          : ", and only a regular file can be changed in place; put the text into a file first, or "
            "have the result printed instead";
  const std::string message = "is " + std::string(kind_of_file(mode)) + advice;
  if (S_ISDIR(mode)) throw FolderTrouble(message);
  throw Trouble(message);
}

void throw_cannot_open(const std::string& path, int error, Purpose purpose) {
  // The links in /dev/fd lead to open files without a name. A shell passes pipes in this way.
  struct stat state {};
  if (stat(path.c_str(), &state) == 0 && !S_ISREG(state.st_mode))
    throw_not_regular(state.st_mode, purpose);
  if (error == ENOENT && is_symbolic_link(path))
    throw Trouble("is a symbolic link to a file that does not exist");
  throw_system_trouble("cannot be opened", error);
}

}  // namespace kelp::input::quill::tool
