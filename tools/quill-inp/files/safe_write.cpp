#include "quill-inp/files/safe_write.hpp"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <utility>

#include "quill-inp/files/access_rights.hpp"
#include "quill-inp/files/provisional_name.hpp"
#include "quill-inp/files/temporary_file.hpp"
#include "quill-inp/process/file_descriptor.hpp"
#include "quill-inp/process/held_signals.hpp"
#include "quill-inp/process/trouble.hpp"

namespace kelp::input::quill::tool {

namespace {

/// The file that is to be replaced, by its name in its open folder, so that renaming a folder in
/// its path cannot put another file in its place.
struct Target {
  FileDescriptor folder;
  FileDescriptor file;
  const FileOrigin& origin;
};

[[noreturn]] void throw_changed() {
  throw Trouble("was changed by somebody else after it was read; nothing was written");
}

/// Throws for a system call that failed on the name of the file. Some errors mean that the name is
/// not that of the file any more. All others say nothing about the file.
[[noreturn]] void throw_lost(int error) {
  if (error == ENOENT || error == ENOTDIR || error == ELOOP) throw_changed();
  throw_system_trouble("cannot be opened again, nothing was written", error);
}

void require_unchanged(const Target& target) {
  struct stat state {};
  if (fstatat(target.folder.number(), target.origin.name.c_str(), &state, AT_SYMLINK_NOFOLLOW) != 0)
    throw_lost(errno);
  if (!is_same_state(state, target.origin.state)) throw_changed();
}

void require_writable(const Target& target) {
  // Replacing the file needs only the right to write to its folder. But a file without write
  // permission is not supposed to be changed.
  if (faccessat(target.folder.number(), target.origin.name.c_str(), W_OK, AT_EACCESS) != 0)
    throw_system_trouble("cannot be written", errno);
}

void require_one_name(const Target& target, const ReplaceOptions& options) {
  const auto names = target.origin.state.st_nlink;
  if (names > 1 && !options.breaks_hard_links) {
    throw Trouble("has " + std::to_string(names) +
                  " names (hard links), and only this one would get the new text; "
                  "use --break-hard-links to accept that");
  }
}

Target open_target(const FileOrigin& origin) {
  FileDescriptor folder(open_in(AT_FDCWD, origin.folder, O_RDONLY | O_DIRECTORY));
  if (folder.number() < 0) throw_system_trouble("the folder of the file cannot be opened", errno);
  FileDescriptor file(open_in(folder.number(), origin.name, O_RDONLY | O_NONBLOCK | O_NOFOLLOW));
  if (file.number() < 0) throw_lost(errno);
  if (!is_same_state(state_of(file.number()), origin.state)) throw_changed();
  return {std::move(folder), std::move(file), origin};
}

void flush_to_disk(int file) {
  while (fsync(file) != 0) {
    if (errno != EINTR) throw_system_trouble("the temporary file cannot be flushed to disk", errno);
  }
}

/// Reads the file back by its name, since others will find it by its name, too.
void require_content(const Target& target, const TemporaryFile& temporary, std::string_view text) {
  const FileDescriptor file(
      open_in(target.folder.number(), temporary.name(), O_RDONLY | O_NOFOLLOW));
  if (file.number() < 0) throw_system_trouble("the temporary file cannot be read back", errno);
  if (read_to_end(file.number(), text.size()) != text)
    throw Trouble("the temporary file does not hold what was written to it");
}

/// Puts the text into the temporary file, with the access rights of the target, and checks that it
/// is there. Returns which of the rights could not be kept.
std::vector<std::string> fill(TemporaryFile& temporary, const Target& target,
                              std::string_view text) {
  const int file = temporary.file().number();
  std::vector<std::string> losses =
      copy_access_rights(target.file.number(), target.origin.state, file);
  write_everything(file, text);
  flush_to_disk(file);
  if (const int error = temporary.file().close(); error != 0)
    throw_system_trouble("the temporary file cannot be closed", error);
  require_content(target, temporary, text);
  return losses;
}

/// A copy of the old text in a temporary file, and the name that it is to have.
struct Backup {
  TemporaryFile file;
  std::string name;

  Backup(const Target& target, std::string_view old_text, const std::string& suffix)
      : file(target.folder.number()), name(target.origin.name + suffix) {
    fill(file, target, old_text);
  }
};

/// Gives the backup its name. The caller holds the signals.
void place(Backup& backup) {
  if (!backup.file.take_free_name(backup.name)) {
    throw Trouble("the backup '" + backup.name +
                  "' exists already and would be lost; use --backup=SUFFIX for another name");
  }
}

/// Puts the file in the place of the target and gives the backup, if there is one, its name. Either
/// both is done or nothing, so that a failed call can be repeated. The backup gets its name first,
/// so that the old text has a name at every moment.
void place(TemporaryFile& file, std::optional<Backup>& backup, const Target& target) {
  const HeldSignals held;
  std::optional<ProvisionalName> backup_name;
  if (backup) {
    place(*backup);
    backup_name.emplace(target.folder.number(), std::move(backup->name));
  }
  require_unchanged(target);
  file.take_place_of(target.origin.name);
  if (backup_name) backup_name->keep();
}

/// The new name is on disk only when the folder is. Some file systems cannot flush folders.
void flush_folder(const Target& target) {
  while (fsync(target.folder.number()) != 0) {
    if (errno == EINVAL || errno == ENOTSUP) return;
    if (errno != EINTR)
      throw_system_trouble("holds the new text, but the folder cannot be flushed to disk", errno);
  }
}

}  // namespace

std::vector<std::string> replace_content(const FileOrigin& origin, std::string_view old_text,
                                         std::string_view new_text, const ReplaceOptions& options) {
  if (old_text == new_text) return {};
  const Target target = open_target(origin);
  require_one_name(target, options);
  require_writable(target);
  std::optional<Backup> backup;
  if (options.backup_suffix) backup.emplace(target, old_text, *options.backup_suffix);
  TemporaryFile temporary(target.folder.number());
  std::vector<std::string> losses = fill(temporary, target, new_text);
  place(temporary, backup, target);
  flush_folder(target);
  return losses;
}

}  // namespace kelp::input::quill::tool
