#include "quill-inp/files/safe_write.hpp"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <iterator>
#include <utility>

#include "quill-inp/files/access_rights.hpp"
#include "quill-inp/files/attributes.hpp"
#include "quill-inp/files/flush.hpp"
#include "quill-inp/files/provisional_name.hpp"
#include "quill-inp/files/temporary_file.hpp"
#include "quill-inp/process/file_descriptor.hpp"
#include "quill-inp/process/held_signals.hpp"
#include "quill-inp/process/trouble.hpp"

namespace kelp::input::quill::tool {

namespace {

[[noreturn]] void throw_changed() {
  throw Trouble("was changed by somebody else after it was read; nothing was written");
}

/// Throws for a system call that failed on the name of the file. Some errors mean that the file
/// does not have this name any more. All others give no information about the file.
[[noreturn]] void throw_lost(int error) {
  if (error == ENOENT || error == ENOTDIR || error == ELOOP) throw_changed();
  throw_system_trouble("cannot be examined again, nothing was written", error);
}

void require_unchanged(const FileOrigin& target) {
  struct stat state {};
  if (fstatat(target.folder.number(), target.name.c_str(), &state, AT_SYMLINK_NOFOLLOW) != 0)
    throw_lost(errno);
  if (!is_same_state(state, target.state)) throw_changed();
}

void require_writable(const FileOrigin& target) {
  // Replacing the file needs only the right to write to its folder. But a file without write
  // permission is not supposed to be changed.
  if (faccessat(target.folder.number(), target.name.c_str(), W_OK, AT_EACCESS) != 0)
    throw_system_trouble("cannot be written", errno);
}

void require_one_name(const FileOrigin& target, const ReplaceOptions& options) {
  const auto names = target.state.st_nlink;
  if (names > 1 && !options.breaks_hard_links) {
    throw Trouble("has " + std::to_string(names) +
                  " names (hard links), and only this one would get the new text; "
                  "use --break-hard-links to accept that");
  }
}

/// Reads the file back by its name, since others will find it by its name, too.
void require_content(const FileOrigin& target, const TemporaryFile& temporary,
                     std::string_view text) {
  const FileDescriptor file(
      open_in(target.folder.number(), temporary.name(), O_RDONLY | O_NOFOLLOW));
  if (file.number() < 0) throw_system_trouble("the temporary file cannot be read back", errno);
  if (read_to_end(file.number(), text.size(), text.size()) != text)
    throw Trouble("the temporary file does not hold what was written to it");
}

void append(std::vector<std::string>& all, std::vector<std::string>&& more) {
  std::move(more.begin(), more.end(), std::back_inserter(all));
}

/// Puts the text into the temporary file, with the access rights and attributes of the target, and
/// checks that it is there. Returns which of them could not be kept.
std::vector<std::string> fill(TemporaryFile& temporary, const FileOrigin& target,
                              std::string_view text) {
  const int file = temporary.file().number();
  const int old_file = target.file.number();
  std::vector<std::string> losses = copy_access_rights(old_file, target.state, file);
  // Some of these have an effect on how the content is stored.
  append(losses, copy_inode_flags(old_file, file));
  write_everything(file, text);
  // The system takes these away from a file that is written to.
  append(losses, restore_special_bits(target.state, file));
  append(losses, copy_attributes(old_file, file));
  flush_file(file, "the temporary file");
  if (const int error = temporary.file().close(); error != 0)
    throw_system_trouble("the temporary file cannot be closed", error);
  require_content(target, temporary, text);
  return losses;
}

/// A copy of the old text in a temporary file, and the name that it is to have.
struct Backup {
  TemporaryFile file;
  std::string name;

  Backup(const FileOrigin& target, std::string_view old_text, const std::string& suffix)
      : file(target.folder.number()), name(target.name + suffix) {
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

/// Replaces the target by the file and gives the backup, if there is one, its name. Either both is
/// done or nothing, so that a failed call can be repeated. The backup gets its name first, so that
/// the old text has a name at every moment.
void place(TemporaryFile& file, std::optional<Backup>& backup, const FileOrigin& target) {
  const HeldSignals held;
  std::optional<ProvisionalName> backup_name;
  if (backup) {
    place(*backup);
    backup_name.emplace(target.folder.number(), std::move(backup->name));
  }
  require_unchanged(target);
  file.take_place_of(target.name);
  if (backup_name) backup_name->keep();
}

}  // namespace

std::vector<std::string> replace_content(const FileOrigin& origin, std::string_view old_text,
                                         std::string_view new_text, const ReplaceOptions& options) {
  if (old_text == new_text) return {};
  require_unchanged(origin);
  require_one_name(origin, options);
  require_writable(origin);
  std::optional<Backup> backup;
  if (options.backup_suffix) backup.emplace(origin, old_text, *options.backup_suffix);
  TemporaryFile temporary(origin.folder.number());
  std::vector<std::string> losses = fill(temporary, origin, new_text);
  place(temporary, backup, origin);
  flush_folder(origin.folder.number());
  return losses;
}

}  // namespace kelp::input::quill::tool
