// A write in place on file systems that lack what others have: locks, links, access lists,
// attributes, and folders that can be flushed.

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <cerrno>
#include <cstddef>
#include <string>
#include <vector>

#include "tools/quill-inp/support/faulty_write.hpp"
#include "tools/quill-inp/support/files.hpp"
#include "tools/quill-inp/support/program.hpp"

namespace kelp::input::quill::tool {
namespace {

const bool is_in_memory = use_memory_for_temporary_files();

class FolderThatCannotBeFlushed : public testing::TestWithParam<int> {};

TEST_P(FolderThatCannotBeFlushed, IsNotAnErrorWhereTheFileSystemCannotDoThat) {
  const std::vector<std::string> calls = calls_of_a_write();
  FaultyWrite write;
  EXPECT_EQ(write.run_with_fault(last_call(calls, "fsync"), "errno " + std::to_string(GetParam())),
            ended(0, "", ""));
  EXPECT_EQ(write.content(), changed_water());
}

TEST_P(FolderThatCannotBeFlushed, DoesNotExcuseAFileThatCannotBe) {
  const std::vector<std::string> calls = calls_of_a_write();
  FaultyWrite write;
  EXPECT_EQ(
      write.run_with_fault(position(calls, "fsync") + 1, "errno " + std::to_string(GetParam()))
          .code,
      2);
  EXPECT_EQ(write.content(), water);
}

INSTANTIATE_TEST_SUITE_P(Table, FolderThatCannotBeFlushed, testing::Values(EINVAL, ENOTSUP),
                         [](const auto& row) { return std::string(strerrorname_np(row.param)); });

TEST(FileSystemWithoutLocks, IsWrittenToAsBefore) {
  const std::size_t lock = position(calls_of_a_write(), "flock") + 1;
  for (const int error : {ENOLCK, ENOTSUP, EBADF, EINVAL, ENOSYS}) {
    FaultyWrite write;
    EXPECT_EQ(write.run_with_fault(lock, "errno " + std::to_string(error)), ended(0, "", ""))
        << error;
    EXPECT_EQ(write.content(), changed_water());
  }
}

class FileSystemWithoutLinks : public testing::TestWithParam<int> {
 protected:
  static Outcome run(FaultyWrite& write) {
    const std::vector<std::string> calls = calls_of_a_write(true);
    const std::size_t link = position(calls, "linkat") + 1;
    EXPECT_LE(link, calls.size());
    return write.run_with_fault(link, "errno " + std::to_string(GetParam()));
  }
};

TEST_P(FileSystemWithoutLinks, StillGetsABackup) {
  FaultyWrite write(true);
  EXPECT_EQ(run(write), ended(0, "", ""));
  EXPECT_EQ(write.others(), std::vector<std::string>{backup_name});
}

TEST_P(FileSystemWithoutLinks, KeepsWhatHasTheNameOfTheBackup) {
  FaultyWrite write(true);
  write.write_other(backup_name);
  EXPECT_EQ(run(write).code, 2);
  EXPECT_EQ(write.backup(), "#other");
}

TEST_P(FileSystemWithoutLinks, KeepsALinkToNowhereThatHasTheNameOfTheBackup) {
  FaultyWrite write(true);
  const std::string link = write.request().folder + "/" + backup_name;
  ASSERT_EQ(symlink("none", link.c_str()), 0);
  EXPECT_EQ(run(write).code, 2);
  struct stat state {};
  ASSERT_EQ(lstat(link.c_str(), &state), 0);
  EXPECT_TRUE(S_ISLNK(state.st_mode));
  EXPECT_EQ(write.content(), water);
}

INSTANTIATE_TEST_SUITE_P(Table, FileSystemWithoutLinks, testing::Values(EPERM, ENOTSUP),
                         [](const auto& row) { return std::string(strerrorname_np(row.param)); });

/// The number of the call that asks for the access control list.
std::size_t first_list(const std::vector<std::string>& calls) {
  return position(calls, "fgetxattr") + 1;
}

TEST(AccessList, ThatCannotBeReadCostsTheRightsOfTheGroup) {
  FaultyWrite write;
  write.request().arguments = {"set", "-i", "a.qin", "model=m2"};
  EXPECT_EQ(write.run_with_fault(first_list(calls_of_a_write()), "errno " + std::to_string(EIO)),
            ended(0, "",
                  "a.qin: note: the access control list could not be kept\n"
                  "a.qin:2: note: changed: #model = m2\n"));
  EXPECT_EQ(write.content(), changed_water());
  // The bits of the group may have been those of a list, and would let the group in without it.
  EXPECT_EQ(write.mode_of_file(), 0600U);
}

TEST(AccessList, ThatTheFileSystemDoesNotHaveIsNotMissed) {
  FaultyWrite write;
  EXPECT_EQ(
      write.run_with_fault(first_list(calls_of_a_write()), "errno " + std::to_string(ENOTSUP)),
      ended(0, "", ""));
  EXPECT_EQ(write.mode_of_file(), mode);
}

TEST(ExtendedAttribute, ThatCannotBeKeptIsNamed) {
  const std::string value = "by hand";
  FaultyWrite write;
  write.request().arguments = {"set", "-i", "a.qin", "model=m2"};
  const std::string note = "a.qin:2: note: changed: #model = m2\n";
  const auto attach = [&](const FaultyWrite& target) {
    ASSERT_EQ(setxattr(target.path().c_str(), "user.a", value.data(), value.size(), 0), 0)
        << "let TMPDIR name a folder that can hold extended attributes";
  };
  FaultyWrite undisturbed;
  attach(undisturbed);
  const std::size_t call = position(undisturbed.list_calls(), "fsetxattr") + 1;
  attach(write);
  EXPECT_EQ(
      write.run_with_fault(call, "errno " + std::to_string(ENOSPC)),
      ended(0, "", "a.qin: note: the extended attribute 'user.a' could not be kept\n" + note));
  EXPECT_EQ(write.content(), changed_water());
}

}  // namespace
}  // namespace kelp::input::quill::tool
