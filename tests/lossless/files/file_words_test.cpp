#include <gtest/gtest.h>

#include <cerrno>
#include <chrono>
#include <string>
#include <string_view>

#include "kelp/input/quill/lossless/wording.hpp"

namespace kelp::input::quill::lossless {
namespace {

using Kind = FileFailure::Kind;

TEST(WordsOfFailures, SayWhatFailed) {
  const struct {
    Kind kind;
    std::string_view words;
  } rows[] = {
      {Kind::NotAName, "is not the name of a file"},
      {Kind::NulInName, "a file name cannot hold a NUL byte"},
      {Kind::NotRegular, "is a socket, not a regular file"},
      {Kind::DanglingLink, "is a symbolic link to a file that does not exist"},
      {Kind::FolderNotOpened, "the folder of the file cannot be opened"},
      {Kind::NotOpened, "cannot be opened"},
      {Kind::NotExamined, "cannot be examined"},
      {Kind::NotLocked, "cannot be locked"},
      {Kind::Locked, "another program is changing it; waited 2 seconds"},
      {Kind::TooLarge, "is larger than 1 byte"},
      {Kind::NotRead, "cannot be read"},
      {Kind::ChangedWhileRead, "changed while it was read"},
      {Kind::AlreadyReplaced, "was replaced already and has to be read again"},
      {Kind::ChangedByOthers,
       "was changed by somebody else after it was read; nothing was written"},
      {Kind::NotExaminedAgain, "cannot be examined again, nothing was written"},
      {Kind::SeveralNames, "has 1 names (hard links), and only this one would get the new text"},
      {Kind::NotWritable, "cannot be written"},
      {Kind::Exists, "exists already and holds another text"},
      {Kind::ExistsNotRegular, "exists already and is not a regular file"},
      {Kind::BackupExists, "the backup 'a.bak' exists already and would be lost"},
      {Kind::BackupNotMade, "the backup 'a.bak' cannot be created"},
      {Kind::NotCreated, "cannot create a temporary file in the same folder"},
      {Kind::NewNotExamined, "the temporary file cannot be examined"},
      {Kind::NoAccessRights, "the permission bits cannot be set"},
      {Kind::NewNotFlushed, "the temporary file cannot be flushed to disk"},
      {Kind::NewNotClosed, "the temporary file cannot be closed"},
      {Kind::NewNotReadBack, "the temporary file cannot be read back"},
      {Kind::NewIsDifferent, "the temporary file does not hold what was written to it"},
      {Kind::NotReplaced, "cannot be replaced"},
      {Kind::FolderNotFlushed, "holds the new text, but the folder cannot be flushed to disk"},
  };
  for (const auto& row : rows) {
    FileFailure failure{row.kind};
    failure.type = FileType::Socket;
    failure.number = 1;
    failure.waited = std::chrono::milliseconds(2999);
    failure.backup = "a.bak";
    EXPECT_EQ(words(failure), row.words);
    failure.system_code = EIO;
    EXPECT_EQ(words(failure), std::string(row.words) + ": Input/output error");
  }
}

TEST(WordsOfFailures, CountInTheSingularAndThePlural) {
  FileFailure failure{Kind::Locked};
  failure.waited = std::chrono::seconds(1);
  EXPECT_EQ(words(failure), "another program is changing it; waited 1 second");
  failure.kind = Kind::TooLarge;
  failure.number = 2;
  EXPECT_EQ(words(failure), "is larger than 2 bytes");
}

TEST(WordsOfFileTypes, HaveTheirArticle) {
  EXPECT_EQ(noun_of(FileType::Folder), "a folder");
  EXPECT_EQ(noun_of(FileType::Pipe), "a pipe");
  EXPECT_EQ(noun_of(FileType::Socket), "a socket");
  EXPECT_EQ(noun_of(FileType::Device), "a device");
}

TEST(WordsOfLostAttributes, NameThem) {
  using Attribute = LostAttribute::Kind;
  const struct {
    LostAttribute lost;
    std::string_view words;
  } rows[] = {
      {{Attribute::Owner}, "the owner could not be kept"},
      {{Attribute::Group}, "the group could not be kept"},
      {{Attribute::AccessList}, "the access control list could not be kept"},
      {{Attribute::SetUserId}, "the setuid bit could not be kept"},
      {{Attribute::SetGroupId}, "the setgid bit could not be kept"},
      {{Attribute::StickyBit}, "the sticky bit could not be kept"},
      {{Attribute::Capabilities}, "the file capabilities could not be kept"},
      {{Attribute::ExtendedAttribute, "user.a"},
       "the extended attribute 'user.a' could not be kept"},
      {{Attribute::Flags}, "the flags that chattr sets could not be kept"},
  };
  for (const auto& row : rows) EXPECT_EQ(words(row.lost), row.words);
}

}  // namespace
}  // namespace kelp::input::quill::lossless
