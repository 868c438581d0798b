#include <system_error>

#include "kelp/input/quill/lossless/wording.hpp"

namespace kelp::input::quill::lossless {

namespace {

using Kind = FileFailure::Kind;

std::string counted(std::int64_t count, const std::string& noun) {
  return std::to_string(count) + " " + noun + (count == 1 ? "" : "s");
}

/// The words for what failed before anything was written.
std::string words_before_writing(const FileFailure& failure) {
  switch (failure.kind) {
    case Kind::NotAName:
      return "is not the name of a file";
    case Kind::NulInName:
      return "a file name cannot hold a NUL byte";
    case Kind::NotRegular:
      return "is " + std::string(noun_of(failure.type)) + ", not a regular file";
    case Kind::DanglingLink:
      return "is a symbolic link to a file that does not exist";
    case Kind::FolderNotOpened:
      return "the folder of the file cannot be opened";
    case Kind::NotExamined:
      return "cannot be examined";
    case Kind::NotLocked:
      return "cannot be locked";
    case Kind::Locked:
      return "another program is changing it; waited " +
             counted(std::chrono::duration_cast<std::chrono::seconds>(failure.waited).count(),
                     "second");
    case Kind::TooLarge:
      return "is larger than " + counted(static_cast<std::int64_t>(failure.number), "byte");
    case Kind::NotRead:
      return "cannot be read";
    case Kind::ChangedWhileRead:
      return "changed while it was read";
    default:
      return "cannot be opened";
  }
}

/// The words for what stands in the way of the new text.
std::string words_at_replacing(const FileFailure& failure) {
  switch (failure.kind) {
    case Kind::AlreadyReplaced:
      return "was replaced already and has to be read again";
    case Kind::ChangedByOthers:
      return "was changed by somebody else after it was read; nothing was written";
    case Kind::NotExaminedAgain:
      return "cannot be examined again, nothing was written";
    case Kind::SeveralNames:
      return "has " + std::to_string(failure.number) +
             " names (hard links), and only this one would get the new text";
    case Kind::NotWritable:
      return "cannot be written";
    case Kind::Exists:
      return "exists already and holds another text";
    case Kind::ExistsNotRegular:
      return "exists already and is not a regular file";
    case Kind::BackupExists:
      return "the backup '" + failure.backup + "' exists already and would be lost";
    case Kind::BackupNotMade:
      return "the backup '" + failure.backup + "' cannot be created";
    default:
      return "cannot be replaced";
  }
}

/// The words for what fails with the temporary file, and after it has taken its name.
std::string words_of_new_file(const FileFailure& failure) {
  switch (failure.kind) {
    case Kind::NotCreated:
      return "cannot create a temporary file in the same folder";
    case Kind::NewNotExamined:
      return "the temporary file cannot be examined";
    case Kind::NoAccessRights:
      return "the permission bits cannot be set";
    case Kind::NewNotFlushed:
      return "the temporary file cannot be flushed to disk";
    case Kind::NewNotClosed:
      return "the temporary file cannot be closed";
    case Kind::NewNotReadBack:
      return "the temporary file cannot be read back";
    case Kind::NewIsDifferent:
      return "the temporary file does not hold what was written to it";
    default:
      return "holds the new text, but the folder cannot be flushed to disk";
  }
}

std::string words_of_kind(const FileFailure& failure) {
  if (failure.kind < Kind::AlreadyReplaced) return words_before_writing(failure);
  if (failure.kind < Kind::NotCreated || failure.kind == Kind::NotReplaced)
    return words_at_replacing(failure);
  return words_of_new_file(failure);
}

std::string noun_of(const LostAttribute& lost) {
  switch (lost.kind) {
    case LostAttribute::Kind::Owner:
      return "owner";
    case LostAttribute::Kind::Group:
      return "group";
    case LostAttribute::Kind::AccessList:
      return "access control list";
    case LostAttribute::Kind::SetUserId:
      return "setuid bit";
    case LostAttribute::Kind::SetGroupId:
      return "setgid bit";
    case LostAttribute::Kind::StickyBit:
      return "sticky bit";
    case LostAttribute::Kind::Capabilities:
      return "file capabilities";
    case LostAttribute::Kind::ExtendedAttribute:
      return "extended attribute '" + lost.name + "'";
    case LostAttribute::Kind::Flags:
      return "flags that chattr sets";
  }
  return {};
}

}  // namespace

std::string_view noun_of(FileType type) {
  switch (type) {
    case FileType::Folder:
      return "a folder";
    case FileType::Pipe:
      return "a pipe";
    case FileType::Socket:
      return "a socket";
    case FileType::Device:
      return "a device";
  }
  return "something else";
}

std::string words(const FileFailure& failure) {
  std::string text = words_of_kind(failure);
  if (failure.system_code == 0) return text;
  return text + ": " + std::generic_category().message(failure.system_code);
}

std::string words(const LostAttribute& lost) {
  return "the " + noun_of(lost) + " could not be kept";
}

}  // namespace kelp::input::quill::lossless
