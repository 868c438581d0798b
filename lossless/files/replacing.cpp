#include "files/replacing.hpp"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <iterator>
#include <utility>

#include "files/access_rights.hpp"
#include "files/attributes.hpp"
#include "files/failure.hpp"
#include "files/file_descriptor.hpp"
#include "files/file_state.hpp"
#include "files/flush.hpp"
#include "files/temporary_file.hpp"
#include "files/unfinished_name.hpp"

namespace kelp::input::quill::lossless {

namespace {

using Kind = FileFailure::Kind;

/// Throws for a system call that failed on the name of the file. Some errors mean that the name is
/// not that of the file any more. All others say nothing about the file.
[[noreturn]] void fail_lost(int error) {
  if (error == ENOENT || error == ENOTDIR || error == ELOOP) fail(Kind::ChangedByOthers);
  fail(Kind::NotExaminedAgain, error);
}

void require_unchanged(const OpenedFile& target) {
  struct stat state {};
  if (fstatat(target.folder.number(), target.name.c_str(), &state, AT_SYMLINK_NOFOLLOW) != 0)
    fail_lost(errno);
  if (!is_same_state(state, target.state)) fail(Kind::ChangedByOthers);
}

void require_writable(const OpenedFile& target) {
  // Replacing the file needs only the right to write to its folder. But a file without write
  // permission is not supposed to be changed.
  if (faccessat(target.folder.number(), target.name.c_str(), W_OK, AT_EACCESS) != 0)
    fail(Kind::NotWritable, errno);
}

void require_one_name(const OpenedFile& target, const ReplaceOptions& options) {
  const auto names = target.state.st_nlink;
  if (names <= 1 || options.breaks_hard_links) return;
  FileFailure failure;
  failure.kind = Kind::SeveralNames;
  failure.number = names;
  throw FileError({}, failure);
}

/// Reads the file back by its name, since others will find it by its name, too.
void require_content(const OpenedFile& target, const TemporaryFile& temporary,
                     std::string_view text) {
  const FileDescriptor file(
      open_in(target.folder.number(), temporary.name(), O_RDONLY | O_NOFOLLOW));
  if (file.number() < 0) fail(Kind::NewNotReadBack, errno);
  if (read_to_end(file.number(), text.size(), text.size()) != text) fail(Kind::NewIsDifferent);
}

/// Reads the text of a file again that is still the one that was read.
std::string read_again_from(const OpenedFile& file) {
  if (lseek(file.file.number(), 0, SEEK_SET) != 0) fail(Kind::NotRead, errno);
  const auto size = static_cast<std::uint64_t>(file.state.st_size);
  return read_to_end(file.file.number(), size, size);
}

void append(std::vector<LostAttribute>& all, std::vector<LostAttribute>&& more) {
  std::move(more.begin(), more.end(), std::back_inserter(all));
}

/// Puts the text into the temporary file, with the access rights and attributes of the target, and
/// checks that it is there. Returns which of them could not be kept.
std::vector<LostAttribute> fill(TemporaryFile& temporary, const OpenedFile& target,
                                std::string_view text) {
  const int file = temporary.file().number();
  const int old_file = target.file.number();
  std::vector<LostAttribute> losses = copy_access_rights(old_file, target.state, file);
  // Some of these have an effect on how the content is stored.
  append(losses, copy_inode_flags(old_file, file));
  write_everything(file, text);
  // The system takes these away from a file that is written to.
  append(losses, restore_special_bits(target.state, file));
  append(losses, copy_attributes(old_file, file));
  flush_file(file);
  if (const int error = temporary.file().close(); error != 0) fail(Kind::NewNotClosed, error);
  require_content(target, temporary, text);
  return losses;
}

/// A copy of the old text in a temporary file, and the name that it is to have.
struct Backup {
  TemporaryFile file;
  std::string name;

  Backup(const OpenedFile& target, std::string_view old_text, const ReplaceOptions& options)
      : file(target.folder.number(), options.unfinished),
        name(target.name + options.backup_suffix.value()) {
    fill(file, target, old_text);
  }
};

/// Gives the backup its name, within a step.
void place(Backup& backup) {
  if (backup.file.take_free_name(backup.name)) return;
  FileFailure failure;
  failure.kind = Kind::BackupExists;
  failure.backup = backup.name;
  throw FileError({}, failure);
}

/// Puts the file in the place of the target and gives the backup, if there is one, its name. Either
/// both is done or nothing, so that a failed call can be repeated. The backup gets its name first,
/// so that the old text has a name at every moment.
void place(TemporaryFile& file, std::optional<Backup>& backup, const OpenedFile& target,
           UnfinishedFiles* unfinished) {
  const Step step(unfinished);
  std::optional<UnfinishedName> backup_name;
  if (backup) {
    place(*backup);
    backup_name.emplace(target.folder.number(), std::move(backup->name), unfinished);
  }
  require_unchanged(target);
  file.take_place_of(target.name);
  if (backup_name) backup_name->keep();
}

}  // namespace

std::vector<LostAttribute> replace_content(OpenedFile& origin, std::string_view new_text,
                                           const ReplaceOptions& options) {
  if (origin.is_replaced) fail(Kind::AlreadyReplaced);
  if (!origin.is_text_taken && origin.text == new_text) return {};
  require_unchanged(origin);
  std::string read_again = origin.is_text_taken ? read_again_from(origin) : std::string();
  const std::string_view old_text = origin.is_text_taken ? read_again : origin.text;
  if (old_text == new_text) return {};
  require_one_name(origin, options);
  require_writable(origin);
  std::optional<Backup> backup;
  if (options.backup_suffix) backup.emplace(origin, old_text, options);
  // Reading the new file back needs as much memory again.
  std::string().swap(read_again);
  TemporaryFile temporary(origin.folder.number(), options.unfinished);
  std::vector<LostAttribute> losses = fill(temporary, origin, new_text);
  place(temporary, backup, origin, options.unfinished);
  origin.is_replaced = true;
  flush_folder(origin.folder.number());
  return losses;
}

}  // namespace kelp::input::quill::lossless
