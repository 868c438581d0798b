// What a file has besides its content, owner and permission bits, after it was changed in place.

#include <fcntl.h>
#include <gtest/gtest.h>
#include <linux/fs.h>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <string>

#include "files/file_descriptor.hpp"
#include "support/temporary_folder.hpp"
#include "tools/quill-inp/support/files.hpp"
#include "tools/quill-inp/support/program.hpp"

namespace kelp::input::quill::tool {
namespace {

constexpr const char* hint = "let TMPDIR name a folder of a file system with attributes and flags";

bool set_attribute(const std::string& path, const char* name, const std::string& value) {
  return setxattr(path.c_str(), name, value.data(), value.size(), 0) == 0;
}

std::string attribute_of(const std::string& path, const char* name) {
  std::string value(4096, '\0');
  const ssize_t size = getxattr(path.c_str(), name, value.data(), value.size());
  return size < 0 ? "none" : value.substr(0, static_cast<std::size_t>(size));
}

/// The right to use any port below 1024, as the kernel stores it.
std::string capability() {
  const char words[] = "\x01\0\0\x02\0\x04\0\0\0\0\0\0\0\0\0\0\0\0\0";
  return {words, sizeof words};
}

unsigned flags_of(const std::string& path) {
  const lossless::FileDescriptor file(lossless::open_in(AT_FDCWD, path, O_RDONLY));
  unsigned flags = 0;
  EXPECT_EQ(ioctl(file.number(), FS_IOC_GETFLAGS, &flags), 0) << hint;
  return flags;
}

bool set_flags(const std::string& path, unsigned flags) {
  const lossless::FileDescriptor file(lossless::open_in(AT_FDCWD, path, O_RDONLY));
  return ioctl(file.number(), FS_IOC_SETFLAGS, &flags) == 0;
}

/// An input in a folder of its own, to be changed in place.
class Attributes : public testing::Test {
 protected:
  Outcome change(bool without_privileges = false) const {
    Request request;
    request.arguments = {"set", "-i", "a.qin", "model=m2"};
    request.folder = folder_.path();
    request.without_privileges = without_privileges;
    return run_program(request);
  }

  Outcome changed(const std::string& notes = "") const {
    return ended(0, "", notes + "a.qin:2: note: changed: #model = m2\n");
  }

  const std::string& path() const { return path_; }

 private:
  TemporaryFolder folder_;
  std::string path_ = folder_.write("a.qin", water);
};

TEST_F(Attributes, OfTheUserAreKept) {
  const std::string large(1000, 'x');
  ASSERT_TRUE(set_attribute(path(), "user.comment", "by hand")) << hint;
  ASSERT_TRUE(set_attribute(path(), "user.empty", ""));
  ASSERT_TRUE(set_attribute(path(), "user.large", large));
  ASSERT_TRUE(set_attribute(path(), "user.bytes", std::string("\0\xFF", 2)));
  EXPECT_EQ(change(true), changed());
  EXPECT_EQ(attribute_of(path(), "user.comment"), "by hand");
  EXPECT_EQ(attribute_of(path(), "user.empty"), "");
  EXPECT_EQ(attribute_of(path(), "user.large"), large);
  EXPECT_EQ(attribute_of(path(), "user.bytes"), std::string("\0\xFF", 2));
  EXPECT_EQ(content_of(path()), changed_water());
}

// Only the superuser can give a file capabilities.
TEST_F(Attributes, CapabilitiesAreKeptWhereTheSystemAllowsIt) {
  // The system lets nobody else do this; the tests run as root in a container and skip elsewhere.
  if (geteuid() != 0) GTEST_SKIP() << "only the superuser can give a file capabilities";
  ASSERT_TRUE(set_attribute(path(), "security.capability", capability())) << hint;
  EXPECT_EQ(change(), changed());
  EXPECT_EQ(attribute_of(path(), "security.capability"), capability());
  EXPECT_EQ(change(), ended(0, "", ""));
}

TEST_F(Attributes, CapabilitiesThatCannotBeKeptAreTold) {
  if (geteuid() != 0) GTEST_SKIP() << "only the superuser can give a file capabilities";
  ASSERT_TRUE(set_attribute(path(), "security.capability", capability())) << hint;
  EXPECT_EQ(change(true), changed("a.qin: note: the file capabilities could not be kept\n"));
  EXPECT_EQ(attribute_of(path(), "security.capability"), "none");
}

TEST_F(Attributes, OfTheSuperuserAreKept) {
  if (geteuid() != 0) GTEST_SKIP() << "only the superuser can set other attributes";
  ASSERT_TRUE(set_attribute(path(), "trusted.note", "x")) << hint;
  EXPECT_EQ(change(), changed());
  EXPECT_EQ(attribute_of(path(), "trusted.note"), "x");
}

TEST_F(Attributes, FlagsAreKept) {
  const unsigned before = flags_of(path());
  ASSERT_TRUE(set_flags(path(), before | FS_NODUMP_FL | FS_NOATIME_FL)) << hint;
  EXPECT_EQ(change(), changed());
  EXPECT_EQ(flags_of(path()), before | FS_NODUMP_FL | FS_NOATIME_FL);
}

TEST_F(Attributes, SetuidAndSetgidAreKeptForOtherOwnersThanTheSuperuser) {
  ASSERT_EQ(chmod(path().c_str(), 06754), 0);
  EXPECT_EQ(change(true), changed());
  EXPECT_EQ(mode_of(path()), 06754U);
}

TEST_F(Attributes, SetuidAndSetgidThatCannotBeKeptAreTold) {
  if (geteuid() != 0) GTEST_SKIP() << "only the superuser can make a file somebody else's";
  ASSERT_EQ(chown(path().c_str(), 12345, 23456), 0);
  ASSERT_EQ(chmod(path().c_str(), 07777), 0);
  EXPECT_EQ(change(true), changed("a.qin: note: the owner could not be kept\n"
                                  "a.qin: note: the group could not be kept\n"
                                  "a.qin: note: the setuid bit could not be kept\n"
                                  "a.qin: note: the setgid bit could not be kept\n"));
  EXPECT_EQ(mode_of(path()), 01777U);
}

}  // namespace
}  // namespace kelp::input::quill::tool
