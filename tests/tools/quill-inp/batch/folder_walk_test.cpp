#include "quill-inp/batch/folder_walk.hpp"

#include <gtest/gtest.h>

#include <cerrno>
#include <filesystem>
#include <string>
#include <utility>
#include <vector>

#include "support/temporary_folder.hpp"

namespace kelp::input::quill::tool {
namespace {

using Names = std::vector<std::string>;

/// A folder with files in it and below it, a hidden one, and links.
class FolderWalk : public testing::Test {
 protected:
  void SetUp() override {
    for (const char* name : {"b/c", "b/.hidden", "a-folder.qin"})
      std::filesystem::create_directories(folder_.path(name));
    for (const char* name : {"a.qin", "b.qin", ".a.qin", "a.qin.bak", "a.xyz", "b/z.qin",
                             "b/c/a.qin", "b/.hidden/a.qin", "a-folder.qin/y.qin"})
      folder_.write(name, "");
    std::filesystem::create_directory_symlink(folder_.path(), folder_.path("b/loop.qin"));
    std::filesystem::create_symlink(folder_.path("a.xyz"), folder_.path("link.qin"));
    std::filesystem::create_symlink("nowhere", folder_.path("broken.qin"));
  }

  /// The files that are found, without the folder.
  Names find(const Names& patterns) {
    Names names;
    const auto fail = [](const std::string& path, int) { ADD_FAILURE() << path; };
    for (const std::string& path : find_files(folder_.path(), patterns, fail))
      names.push_back(path.substr(folder_.path().size() + 1));
    return names;
  }

  TemporaryFolder folder_;
};

TEST_F(FolderWalk, FindsFilesInTheOrderOfTheirNames) {
  EXPECT_EQ(find({"*.qin"}),
            (Names{"a-folder.qin/y.qin", "a.qin", "b/c/a.qin", "b/z.qin", "b.qin", "link.qin"}));
}

TEST_F(FolderWalk, TakesWhatMatchesOneOfThePatterns) {
  EXPECT_EQ(find({"a.*", "z*"}), (Names{"a.qin", "a.qin.bak", "a.xyz", "b/c/a.qin", "b/z.qin"}));
}

TEST_F(FolderWalk, ComparesAPatternWithASlashWithTheWholePath) {
  EXPECT_EQ(find({"b/*.qin"}), Names{"b/z.qin"});
  EXPECT_EQ(find({"*/c/?.qin"}), Names{"b/c/a.qin"});
}

TEST_F(FolderWalk, FindsHiddenFilesOnlyWhenTheyAreAskedFor) {
  EXPECT_EQ(find({".*.qin"}), Names{".a.qin"});
}

TEST_F(FolderWalk, KeepsTheFolderAsItIsSpelled) {
  const auto fail = [](const std::string& path, int) { ADD_FAILURE() << path; };
  EXPECT_EQ(find_files(folder_.path("b") + "/", {"z*", "b/*"}, fail),
            Names{folder_.path("b") + "/z.qin"});
}

TEST_F(FolderWalk, ReportsAFolderThatCannotBeRead) {
  std::vector<std::pair<std::string, int>> failures;
  const Names files =
      find_files(folder_.path("none"), {"*"},
                 [&](const std::string& path, int error) { failures.emplace_back(path, error); });
  EXPECT_EQ(files, Names{});
  EXPECT_EQ(failures, (std::vector<std::pair<std::string, int>>{{folder_.path("none"), ENOENT}}));
}

TEST_F(FolderWalk, KnowsFoldersAndLinksToThem) {
  EXPECT_TRUE(is_folder(folder_.path("b")));
  EXPECT_TRUE(is_folder(folder_.path("b/loop.qin")));
  EXPECT_FALSE(is_folder(folder_.path("a.qin")));
  EXPECT_FALSE(is_folder(folder_.path("none")));
}

}  // namespace
}  // namespace kelp::input::quill::tool
