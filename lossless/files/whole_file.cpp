#include "kelp/input/quill/lossless/whole_file.hpp"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

#include "files/failure.hpp"
#include "files/file_descriptor.hpp"
#include "files/flush.hpp"
#include "files/opened_file.hpp"
#include "files/replacing.hpp"
#include "files/temporary_file.hpp"

namespace kelp::input::quill::lossless {

namespace {

using Kind = FileFailure::Kind;

constexpr mode_t mode_of_new_files = 0666;  // less the bits of the user's mask

/// Opens an existing file. The new file cannot replace one that is not a regular file.
OpenedFile open_existing(const std::string& path, const WriteOptions& options) {
  try {
    return open_and_lock(path, options.patience);
  } catch (const FileError& error) {
    if (error.failure().kind == Kind::NotRegular) fail(Kind::ExistsNotRegular);
    throw;
  }
}

/// Replaces the text of a file that is there, if it is another one.
WrittenFile replace(const std::string& path, std::string_view text, const WriteOptions& options) {
  OpenedFile file = open_existing(path, options);
  // A longer text is another one: the rest of it does not matter.
  file.text = read_to_end(file.file.number(), text.size(), text.size());
  if (file.text == text) return {};
  if (options.existing == ExistingFile::IsRefused) fail(Kind::Exists);
  ReplaceOptions replacing;
  replacing.unfinished = options.unfinished;
  return {true, replace_content(file, text, replacing)};
}

void fill(int file, std::string_view text) {
  write_everything(file, text);
  flush_file(file);
  if (lseek(file, 0, SEEK_SET) != 0 || read_to_end(file, text.size(), text.size()) != text)
    fail(Kind::NewIsDifferent);
}

/// Gives a file without a name its name. Returns false where the system cannot do that.
bool give_name(int file, int folder, const std::string& name) {
  const std::string link = "/proc/self/fd/" + std::to_string(file);
  if (linkat(AT_FDCWD, link.c_str(), folder, name.c_str(), AT_SYMLINK_FOLLOW) == 0) return true;
  if (errno == EEXIST) fail(Kind::Exists);
  return false;
}

/// Returns false where the system has no files without a name.
bool create_without_name(int folder, const std::string& name, std::string_view text) {
#if defined(O_TMPFILE)
  const FileDescriptor file(open_in(folder, ".", O_TMPFILE | O_RDWR, mode_of_new_files));
  if (file.number() < 0) return false;
  fill(file.number(), text);
  return give_name(file.number(), folder, name);
#else
  static_cast<void>(folder);
  static_cast<void>(name);
  static_cast<void>(text);
  return false;
#endif
}

void create_with_temporary_name(int folder, const std::string& name, std::string_view text,
                                UnfinishedFiles* unfinished) {
  TemporaryFile temporary(folder, unfinished, mode_of_new_files);
  fill(temporary.file().number(), text);
  if (const int error = temporary.file().close(); error != 0) fail(Kind::NewNotClosed, error);
  if (!temporary.take_free_name(name)) fail(Kind::Exists);
}

FileDescriptor open_folder(const std::string& path) {
  FileDescriptor folder(open_in(AT_FDCWD, path, O_RDONLY | O_DIRECTORY));
  if (folder.number() < 0) fail(Kind::FolderNotOpened, errno);
  return folder;
}

void create(const std::string& path, std::string_view text, const WriteOptions& options) {
  const FileDescriptor folder = open_folder(folder_of_path(path));
  const std::string name = path.substr(path.rfind('/') + 1);
  if (!create_without_name(folder.number(), name, text))
    create_with_temporary_name(folder.number(), name, text, options.unfinished);
  if (options.flush == FolderFlush::Now) flush_folder(folder.number());
}

WrittenFile write(const std::string& path, std::string_view text, const WriteOptions& options) {
  if (path.find('\0') != std::string::npos) fail(Kind::NulInName);
  if (path.empty() || path.back() == '/') fail(Kind::NotAName);
  struct stat state {};
  if (stat(path.c_str(), &state) == 0) return replace(path, text, options);
  if (errno != ENOENT) fail(Kind::NotExamined, errno);
  create(path, text, options);
  return {true, {}};
}

}  // namespace

WrittenFile write_whole_file(const std::string& path, std::string_view text,
                             const WriteOptions& options) {
  try {
    return write(path, text, options);
  } catch (const FileError& error) {
    throw FileError(path, error.failure());
  }
}

void flush_folder(const std::string& path) {
  try {
    flush_folder(open_folder(path).number());
  } catch (const FileError& error) {
    throw FileError(path, error.failure());
  }
}

std::string folder_of_path(const std::string& path) {
  const std::size_t slash = path.rfind('/');
  if (slash == std::string::npos) return ".";
  return slash == 0 ? "/" : path.substr(0, slash);
}

}  // namespace kelp::input::quill::lossless
