#include "quill-inp/files/whole_file.hpp"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>

#include "quill-inp/files/file_origin.hpp"
#include "quill-inp/files/flush.hpp"
#include "quill-inp/files/safe_write.hpp"
#include "quill-inp/files/temporary_file.hpp"
#include "quill-inp/process/file_descriptor.hpp"
#include "quill-inp/process/trouble.hpp"

namespace kelp::input::quill::tool {

namespace {

constexpr std::chrono::seconds longest_wait{60};  // for other runs of this program
constexpr mode_t mode_of_new_files = 0666;        // without the bits of the user's mask

[[noreturn]] void throw_exists() {
  throw Trouble("exists already and holds another text; use --force to replace it");
}

/// Replaces the text of an existing file, if the new text is different.
WrittenFile replace(const std::string& path, std::string_view text, ExistingFile existing) {
  const FileOrigin origin = open_for_replacing(path, longest_wait);
  if (!S_ISREG(origin.state.st_mode)) throw Trouble("exists already and is not a regular file");
  const std::string old_text = read_to_end(origin.file.number(), text.size(), text.size());
  if (old_text == text) return {};
  if (existing == ExistingFile::IsRefused) throw_exists();
  return {true, replace_content(origin, old_text, text, {})};
}

void fill(int file, std::string_view text) {
  write_everything(file, text);
  flush_file(file, "the new file");
  if (lseek(file, 0, SEEK_SET) != 0 || read_to_end(file, text.size(), text.size()) != text)
    throw Trouble("the new file does not hold what was written to it");
}

/// Gives a file without a name its name. Returns false if the system cannot do that.
bool give_name(int file, int folder, const std::string& name) {
  const std::string link = "/proc/self/fd/" + std::to_string(file);
  if (linkat(AT_FDCWD, link.c_str(), folder, name.c_str(), AT_SYMLINK_FOLLOW) == 0) return true;
  if (errno == EEXIST) throw_exists();
  return false;
}

/// Returns false if the system has no files without a name.
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

void create_with_temporary_name(int folder, const std::string& name, std::string_view text) {
  TemporaryFile temporary(folder, mode_of_new_files);
  fill(temporary.file().number(), text);
  if (const int error = temporary.file().close(); error != 0)
    throw_system_trouble("the new file cannot be closed", error);
  if (!temporary.take_free_name(name)) throw_exists();
}

void create(const std::string& path, std::string_view text, FolderFlush flush) {
  const FileDescriptor folder(open_in(AT_FDCWD, folder_of_path(path), O_RDONLY | O_DIRECTORY));
  if (folder.number() < 0) throw_system_trouble("the folder of the file cannot be opened", errno);
  const std::string name = path.substr(path.rfind('/') + 1);
  if (!create_without_name(folder.number(), name, text))
    create_with_temporary_name(folder.number(), name, text);
  if (flush == FolderFlush::Now) flush_folder(folder.number());
}

}  // namespace

WrittenFile write_whole_file(const std::string& path, std::string_view text, ExistingFile existing,
                             FolderFlush flush) {
  if (path.empty() || path.back() == '/') throw Trouble("is not the name of a file");
  struct stat state {};
  if (stat(path.c_str(), &state) == 0) return replace(path, text, existing);
  if (errno != ENOENT) throw_system_trouble("cannot be examined", errno);
  create(path, text, flush);
  return {true, {}};
}

std::string folder_of_path(const std::string& path) {
  const std::size_t slash = path.rfind('/');
  if (slash == std::string::npos) return ".";
  return slash == 0 ? "/" : path.substr(0, slash);
}

}  // namespace kelp::input::quill::tool
