#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstring>
#include <optional>
#include <string>
#include <vector>

#include "support/temporary_folder.hpp"
#include "tools/quill-inp/support/files.hpp"
#include "tools/quill-inp/support/program.hpp"

namespace kelp::input::quill::tool {
namespace {

using Names = std::vector<std::string>;

const std::vector<std::string> change = {"set", "-q", "-i", "a.qin", "model=m2"};

TEST(Links, StayLinks) {
  const TemporaryFolder folder;
  ASSERT_EQ(mkdir(folder.path("real").c_str(), 0755), 0);
  const std::string path = folder.write("real/job.qin", water);
  ASSERT_EQ(symlink("real/job.qin", folder.path("relative").c_str()), 0);
  ASSERT_EQ(symlink(path.c_str(), folder.path("absolute").c_str()), 0);
  ASSERT_EQ(symlink("relative", folder.path("chained").c_str()), 0);
  ASSERT_EQ(symlink("real", folder.path("folder").c_str()), 0);
  int number = 0;
  for (const std::string name : {"relative", "absolute", "chained", "folder/job.qin"}) {
    const std::string value = "value" + std::to_string(++number);
    const struct stat before = state_of(folder.path(name));
    EXPECT_EQ(run_in(folder.path(), {"set", "-q", "-i", name, "model=" + value}), ended(0, "", ""));
    if (S_ISLNK(before.st_mode)) {
      EXPECT_EQ(state_of(folder.path(name)).st_ino, before.st_ino);
    }
    EXPECT_NE(content_of(path).find(value), std::string::npos) << name;
    EXPECT_TRUE(S_ISREG(state_of(path).st_mode));
  }
  EXPECT_EQ(names_in(folder.path()), (Names{"absolute", "chained", "folder", "real", "relative"}));
  EXPECT_EQ(names_in(folder.path("real")), Names{"job.qin"});
}

TEST(Links, ThatLeadNowhereAreErrors) {
  const TemporaryFolder folder;
  ASSERT_EQ(symlink("none.qin", folder.path("dangling").c_str()), 0);
  ASSERT_EQ(symlink("loop", folder.path("loop").c_str()), 0);
  EXPECT_EQ(run_in(folder.path(), {"set", "-i", "dangling", "a=b"}),
            ended(2, "", "dangling: error: is a symbolic link to a file that does not exist\n"));
  EXPECT_EQ(run_in(folder.path(), {"set", "-i", "loop", "a=b"}),
            ended(2, "", "loop: error: cannot be opened: Too many levels of symbolic links\n"));
  EXPECT_EQ(names_in(folder.path()), (Names{"dangling", "loop"}));
}

TEST(HardLinks, AreNotBrokenUnlessAsked) {
  const TemporaryFolder folder;
  const std::string path = folder.write("a.qin", water);
  ASSERT_EQ(link(path.c_str(), folder.path("other").c_str()), 0);
  EXPECT_EQ(run_in(folder.path(), change),
            ended(2, "",
                  "a.qin: error: has 2 names (hard links), and only this one would get the new "
                  "text; use --break-hard-links to accept that\n"));
  EXPECT_EQ(content_of(path), water);
  std::vector<std::string> breaking = change;
  breaking.emplace_back("--break-hard-links");
  EXPECT_EQ(run_in(folder.path(), breaking), ended(0, "", ""));
  EXPECT_EQ(content_of(path), changed_water());
  EXPECT_EQ(content_of(folder.path("other")), water);
}

TEST(Backup, KeepsTheOldTextNextToTheFile) {
  const TemporaryFolder folder;
  const std::string path = folder.write("a.qin", water);
  EXPECT_EQ(run_in(folder.path(), {"set", "-q", "-i", "--backup", "a.qin", "model=m2"}),
            ended(0, "", ""));
  EXPECT_EQ(content_of(path + ".bak"), water);
  EXPECT_EQ(content_of(path), changed_water());
  EXPECT_EQ(run_in(folder.path(), {"set", "-q", "-i", "--backup=~", "a.qin", "model=m3"}),
            ended(0, "", ""));
  EXPECT_EQ(content_of(path + "~"), changed_water());
  EXPECT_EQ(names_in(folder.path()), (Names{"a.qin", "a.qin.bak", "a.qin~"}));
}

TEST(Backup, IsGoneWhenFilesMayNotGrowAndNotInTheWayOfTheNext) {
  const TemporaryFolder folder;
  const std::string path = folder.write("a.qin", water);
  Request request;
  request.arguments = {"set", "-q", "-i", "--backup", "a.qin", "model=a-longer-name"};
  request.folder = folder.path();
  request.largest_file = std::strlen(water);
  EXPECT_EQ(run_program(request),
            ended(2, "", "a.qin: error: cannot be written: File too large\n"));
  EXPECT_EQ(names_in(folder.path()), Names{"a.qin"});
  EXPECT_EQ(content_of(path), water);
  request.largest_file = std::nullopt;
  EXPECT_EQ(run_program(request), ended(0, "", ""));
  EXPECT_EQ(names_in(folder.path()), (Names{"a.qin", "a.qin.bak"}));
  EXPECT_EQ(content_of(path + ".bak"), water);
}

TEST(Backup, IsNextToTheFileThatALinkLeadsTo) {
  const TemporaryFolder folder;
  ASSERT_EQ(mkdir(folder.path("real").c_str(), 0755), 0);
  folder.write("real/job.qin", water);
  ASSERT_EQ(symlink("real/job.qin", folder.path("link").c_str()), 0);
  EXPECT_EQ(run_in(folder.path(), {"set", "-q", "-i", "--backup", "link", "model=m2"}).code, 0);
  EXPECT_EQ(names_in(folder.path()), (Names{"link", "real"}));
  EXPECT_EQ(content_of(folder.path("real/job.qin.bak")), water);
}

TEST(Backup, IsNotOverwritten) {
  const TemporaryFolder folder;
  const std::string path = folder.write("a.qin", water);
  folder.write("a.qin.bak", "the first text");
  EXPECT_EQ(run_in(folder.path(), {"set", "-i", "--backup", "a.qin", "model=m2"}),
            ended(2, "",
                  "a.qin: error: the backup 'a.qin.bak' exists already and would be lost; "
                  "use --backup=SUFFIX for another name\n"));
  EXPECT_EQ(content_of(path), water);
  EXPECT_EQ(content_of(path + ".bak"), "the first text");
  EXPECT_EQ(names_in(folder.path()), (Names{"a.qin", "a.qin.bak"}));
}

TEST(Backup, DoesNotFollowALink) {
  const TemporaryFolder folder;
  folder.write("a.qin", water);
  ASSERT_EQ(symlink("elsewhere", folder.path("a.qin.bak").c_str()), 0);
  EXPECT_EQ(run_in(folder.path(), {"set", "-i", "--backup", "a.qin", "model=m2"}).code, 2);
  EXPECT_EQ(names_in(folder.path()), (Names{"a.qin", "a.qin.bak"}));
}

}  // namespace
}  // namespace kelp::input::quill::tool
