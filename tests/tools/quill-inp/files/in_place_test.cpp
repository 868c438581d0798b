#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdint>
#include <cstring>
#include <fstream>
#include <string>
#include <vector>

#include "support/temporary_folder.hpp"
#include "tools/quill-inp/support/files.hpp"
#include "tools/quill-inp/support/program.hpp"

namespace kelp::input::quill::tool {
namespace {

using Names = std::vector<std::string>;

const std::vector<std::string> change = {"set", "-q", "-i", "a.qin", "model=m2"};

TEST(InPlace, ReportsTheLinesThatChanged) {
  const TemporaryFolder folder;
  folder.write("a.qin", "#a\n#b = 1\n#c(d)\n\n0 1\nHe 0 0 0\nHe 0 0 1\n");
  EXPECT_EQ(run_in(folder.path(), {"set", "-i", "a.qin", "b=2", "--flag", "e"}),
            ended(0, "", "a.qin:2: note: changed: #b = 2\na.qin:4: note: added: #e\n"));
  EXPECT_EQ(run_in(folder.path(), {"unset", "-i", "a.qin", "a", "@charge"}),
            ended(0, "", "a.qin:1: note: removed: #a\na.qin:6: note: removed: 0 1\n"));
  EXPECT_EQ(run_in(folder.path(), {"add", "-i", "a.qin", "--bond", "1,2", "--atom", "1"}),
            ended(0, "", "a.qin:7: note: added, up to line 9\n"));
  EXPECT_EQ(run_in(folder.path(), {"set", "-i", "a.qin", "--xyz", "x"}),
            ended(0, "", "a.qin:5: note: changed: XYZ x\na.qin:6: note: removed: He 0 0 1\n"));
  EXPECT_EQ(content_of(folder.path("a.qin")), "#b = 2\n#c(d)\n#e\n\nXYZ x\n\nB 1 2\nC 1\n");
}

TEST(InPlace, FormatsSeveralFiles) {
  const TemporaryFolder folder;
  folder.write("a.qin", "# a\n0  1\n");
  folder.write("b.qin", "#b\nB 1 x\n");
  folder.write("c.qin", "# c\r\n0 1");
  EXPECT_EQ(run_in(folder.path(), {"fmt", "-q", "-i", "a.qin", "b.qin", "none", "c.qin"}),
            ended(2, "",
                  "b.qin:2: error: refused: line 2 would be left out: 'B 1 x'; use --allow-loss to "
                  "write it anyway\nnone: error: cannot be opened: No such file or directory\n"));
  EXPECT_EQ(content_of(folder.path("a.qin")), "#a\n\n0 1\n");
  EXPECT_EQ(content_of(folder.path("b.qin")), "#b\nB 1 x\n");
  EXPECT_EQ(content_of(folder.path("c.qin")), "#c\n\n0 1\n");
  EXPECT_EQ(names_in(folder.path()), (Names{"a.qin", "b.qin", "c.qin"}));
}

TEST(InPlace, DoesNotTouchAFileThatStaysTheSame) {
  const TemporaryFolder folder;
  const std::string path = folder.write("a.qin", water);
  ASSERT_EQ(link(path.c_str(), folder.path("other").c_str()), 0);
  const struct stat before = state_of(path);
  EXPECT_EQ(run_in(folder.path(), {"set", "-i", "--backup", "a.qin", "model=m1"}),
            ended(0, "", ""));
  EXPECT_EQ(run_in(folder.path(), {"fmt", "-i", "a.qin"}), ended(0, "", ""));
  const struct stat after = state_of(path);
  EXPECT_EQ(after.st_ino, before.st_ino);
  EXPECT_EQ(after.st_mtim.tv_nsec, before.st_mtim.tv_nsec);
  EXPECT_EQ(after.st_ctim.tv_nsec, before.st_ctim.tv_nsec);
  EXPECT_EQ(names_in(folder.path()), (Names{"a.qin", "other"}));
}

TEST(InPlace, LeavesAFileAloneThatItRefusesToChange) {
  const TemporaryFolder folder;
  const std::string path = folder.write("a.qin", water);
  const struct stat before = state_of(path);
  EXPECT_EQ(run_in(folder.path(), {"add", "-i", "--backup", "a.qin", "--angle", "1,2,3"}).code, 2);
  EXPECT_EQ(run_in(folder.path(), {"unset", "-i", "--backup", "a.qin", "none"}).code, 1);
  EXPECT_EQ(state_of(path).st_ino, before.st_ino);
  EXPECT_EQ(content_of(path), water);
  EXPECT_EQ(names_in(folder.path()), Names{"a.qin"});
}

struct ModeRow {
  std::string name;
  unsigned mode;
  unsigned umask;
};

class Mode : public testing::TestWithParam<ModeRow> {};

TEST_P(Mode, StaysUnderAnyUmask) {
  const TemporaryFolder folder;
  const std::string path = folder.write("a.qin", water);
  ASSERT_EQ(chmod(path.c_str(), GetParam().mode), 0);
  Request request;
  request.arguments = change;
  request.arguments.emplace_back("--backup");
  request.folder = folder.path();
  request.umask = GetParam().umask;
  EXPECT_EQ(run_program(request), ended(0, "", ""));
  EXPECT_EQ(mode_of(path), GetParam().mode);
  EXPECT_EQ(mode_of(path + ".bak"), GetParam().mode);
  EXPECT_EQ(content_of(path), changed_water());
}

INSTANTIATE_TEST_SUITE_P(
    Table, Mode,
    testing::Values(ModeRow{"GroupReads", 0640, 022}, ModeRow{"OwnerOnly", 0600, 0},
                    ModeRow{"EverybodyWrites", 0666, 077}, ModeRow{"Program", 04755, 022},
                    ModeRow{"NoUmaskAtAll", 0644, 0}, ModeRow{"UmaskOfEverything", 0644, 0777}),
    [](const auto& row) { return row.param.name; });

Outcome change_without_privileges(const TemporaryFolder& folder) {
  Request request;
  request.arguments = change;
  request.folder = folder.path();
  request.without_privileges = true;
  return run_program(request);
}

TEST(InPlace, NeedsTheRightToWriteTheFile) {
  const TemporaryFolder folder;
  const std::string path = folder.write("a.qin", water);
  chmod(path.c_str(), 0444);
  EXPECT_EQ(change_without_privileges(folder),
            ended(2, "", "a.qin: error: cannot be written: Permission denied\n"));
  EXPECT_EQ(content_of(path), water);
}

TEST(InPlace, NeedsTheRightToWriteTheFolder) {
  const TemporaryFolder folder;
  const std::string path = folder.write("a.qin", water);
  chmod(folder.path().c_str(), 0555);
  EXPECT_EQ(change_without_privileges(folder),
            ended(2, "",
                  "a.qin: error: cannot create a temporary file in the same "
                  "folder: Permission denied\n"));
  chmod(folder.path().c_str(), 0755);
  EXPECT_EQ(content_of(path), water);
  EXPECT_EQ(names_in(folder.path()), Names{"a.qin"});
}

TEST(InPlace, NeedsTheRightToReadTheFolder) {
  const TemporaryFolder folder;
  const std::string path = folder.write("a.qin", water);
  chmod(folder.path().c_str(), 0333);
  EXPECT_EQ(
      change_without_privileges(folder),
      ended(2, "", "a.qin: error: the folder of the file cannot be opened: Permission denied\n"));
  chmod(folder.path().c_str(), 0755);
  EXPECT_EQ(content_of(path), water);
}

TEST(InPlace, KeepsOwnerAndGroup) {
  const TemporaryFolder folder;
  const std::string path = folder.write("a.qin", water);
  // Only the superuser can give a file to another user; for others, their own name must stay.
  if (geteuid() == 0) {
    ASSERT_EQ(chown(path.c_str(), 12345, 23456), 0);
  }
  chmod(path.c_str(), 04750);
  const struct stat before = state_of(path);
  EXPECT_EQ(run_in(folder.path(), change), ended(0, "", ""));
  const struct stat after = state_of(path);
  EXPECT_NE(after.st_ino, before.st_ino);
  EXPECT_EQ(after.st_uid, before.st_uid);
  EXPECT_EQ(after.st_gid, before.st_gid);
  EXPECT_EQ(after.st_mode, before.st_mode);
}

// The file has to belong to somebody else, and the system lets only the superuser arrange that. CI
// runs as the superuser, so this is skipped only for other people at their own machines.
TEST(InPlace, LetsNobodyInWhereOwnerAndGroupCannotBeKept) {
  if (geteuid() != 0) GTEST_SKIP() << "only the superuser can make a file somebody else's";
  const TemporaryFolder folder;
  const std::string path = folder.write("a.qin", water);
  ASSERT_EQ(chown(path.c_str(), 12345, 23456), 0);
  chmod(path.c_str(), 0676);
  Request request;
  request.arguments = {"set", "-i", "a.qin", "model=m2"};
  request.folder = folder.path();
  request.without_privileges = true;
  EXPECT_EQ(run_program(request),
            ended(0, "",
                  "a.qin: note: the owner could not be kept\na.qin: note: the group could not be "
                  "kept\na.qin:2: note: changed: #model = m2\n"));
  EXPECT_EQ(mode_of(path), 0666U);
  EXPECT_EQ(content_of(path), changed_water());
}

// Nobody but the superuser gives files away, but anybody may use the groups he is in.
// It is skipped for other users for the same reason as the test above.
TEST(InPlace, KeepsTheGroupWhereOnlyTheOwnerCannotBeKept) {
  if (geteuid() != 0) GTEST_SKIP() << "only the superuser can make a file somebody else's";
  const TemporaryFolder folder;
  const std::string path = folder.write("a.qin", water);
  ASSERT_EQ(chown(path.c_str(), 12345, getegid()), 0);
  chmod(path.c_str(), 0666);
  // New files in the folder have its group.
  ASSERT_EQ(chown(folder.path().c_str(), geteuid(), 23456), 0);
  chmod(folder.path().c_str(), 02777);
  EXPECT_EQ(change_without_privileges(folder), ended(0, "", ""));
  EXPECT_EQ(state_of(path).st_uid, geteuid());
  EXPECT_EQ(state_of(path).st_gid, getegid());
}

/// An access control list as the kernel stores it: a version, and entries of tag, rights and id.
std::string access_list(unsigned named_user, unsigned rights) {
  constexpr std::uint32_t nobody = 0xFFFFFFFF;
  struct Entry {
    std::uint16_t tag;
    std::uint16_t rights;
    std::uint32_t id;
  };
  const auto bits = static_cast<std::uint16_t>(rights);
  const std::array<Entry, 5> entries = {{{0x01, 6, nobody},
                                         {0x02, bits, named_user},
                                         {0x04, 0, nobody},
                                         {0x10, bits, nobody},
                                         {0x20, 0, nobody}}};
  const std::uint32_t version = 2;
  std::string list(sizeof version + sizeof entries, '\0');
  std::memcpy(list.data(), &version, sizeof version);
  std::memcpy(list.data() + sizeof version, entries.data(), sizeof entries);
  return list;
}

std::string attribute_of(const std::string& path, const char* name) {
  std::array<char, 256> value{};
  const ssize_t size = getxattr(path.c_str(), name, value.data(), value.size());
  return size < 0 ? std::string("none") : std::string(value.data(), static_cast<std::size_t>(size));
}

constexpr const char* list_of_file = "system.posix_acl_access";
constexpr const char* list_for_new_files = "system.posix_acl_default";

constexpr const char* hint = "let TMPDIR name a folder that can hold access control lists";

bool set_attribute(const std::string& path, const char* name, const std::string& value) {
  return setxattr(path.c_str(), name, value.data(), value.size(), 0) == 0;
}

TEST(InPlace, KeepsTheAccessControlList) {
  const TemporaryFolder folder;
  const std::string path = folder.write("a.qin", water);
  const std::string list = access_list(12345, 6);
  ASSERT_TRUE(set_attribute(path, list_of_file, list)) << hint;
  EXPECT_EQ(run_in(folder.path(), change), ended(0, "", ""));
  EXPECT_EQ(attribute_of(path, list_of_file), list);
  EXPECT_EQ(mode_of(path), 0660U);
}

// A new file gets a list from its folder, and with it readers that the old one did not have.
TEST(InPlace, TakesNoAccessControlListFromTheFolder) {
  const TemporaryFolder folder;
  const std::string path = folder.write("a.qin", water);
  chmod(path.c_str(), 0640);
  ASSERT_TRUE(set_attribute(folder.path(), list_for_new_files, access_list(12345, 4))) << hint;
  EXPECT_EQ(run_in(folder.path(), change), ended(0, "", ""));
  EXPECT_EQ(attribute_of(path, list_of_file), "none");
  EXPECT_EQ(mode_of(path), 0640U);
}

TEST(InPlace, TakesNamesAsLongAsTheyCanBe) {
  const TemporaryFolder folder;
  const std::string name = std::string(251, 'a') + ".qin";
  const std::string path = folder.write(name, water);
  EXPECT_EQ(run_in(folder.path(), {"set", "-q", "-i", name, "model=m2"}), ended(0, "", ""));
  EXPECT_EQ(content_of(path), changed_water());
  EXPECT_EQ(
      run_in(folder.path(), {"set", "-q", "-i", "--backup", name, "model=m3"}).err,
      name + ": error: the backup '" + name + ".bak' cannot be created: File name too long\n");
  EXPECT_EQ(content_of(path), changed_water());
  EXPECT_EQ(names_in(folder.path()), Names{name});
}

/// Makes folders in one another, whose whole path no system call takes, and makes the last of them
/// the current folder.
void enter_deep_folder(const std::string& top) {
  const std::string name(200, 'a');
  ASSERT_EQ(chdir(top.c_str()), 0);
  for (int depth = 0; depth < 25; ++depth) {
    ASSERT_EQ(mkdir(name.c_str(), 0755), 0);
    ASSERT_EQ(chdir(name.c_str()), 0);
  }
}

TEST(InPlace, WorksInAFolderWithTheLongestPath) {
  const int here = open(".", O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  const TemporaryFolder folder;
  enter_deep_folder(folder.path());
  std::ofstream("a.qin") << water;
  ASSERT_EQ(symlink("a.qin", "link.qin"), 0);
  EXPECT_EQ(run_in(".", {"set", "-q", "-i", "--backup", "link.qin", "model=m2"}), ended(0, "", ""));
  EXPECT_EQ(run_in(".", {"get", "a.qin", "model"}), ended(0, "m2\n", ""));
  EXPECT_EQ(run_in(".", {"add", "-i", "a.qin", "--bond", "1,4"}).code, 2);
  EXPECT_EQ(content_of("a.qin"), changed_water());
  EXPECT_EQ(content_of("a.qin.bak"), water);
  EXPECT_EQ(names_in("."), (Names{"a.qin", "a.qin.bak", "link.qin"}));
  ASSERT_EQ(fchdir(here), 0);
  close(here);
}

TEST(InPlace, FailsWholeWhereFilesMayNotGrow) {
  const TemporaryFolder folder;
  const std::string path = folder.write("a.qin", water);
  Request request;
  request.arguments = change;
  request.folder = folder.path();
  for (const std::size_t limit : {std::size_t{0}, std::size_t{1}, std::strlen(water) - 1}) {
    request.largest_file = limit;
    EXPECT_EQ(run_program(request),
              ended(2, "", "a.qin: error: cannot be written: File too large\n"));
    EXPECT_EQ(content_of(path), water);
    EXPECT_EQ(names_in(folder.path()), Names{"a.qin"});
  }
  request.largest_file = std::strlen(water);
  EXPECT_EQ(run_program(request), ended(0, "", ""));
  EXPECT_EQ(content_of(path), changed_water());
}

}  // namespace
}  // namespace kelp::input::quill::tool
