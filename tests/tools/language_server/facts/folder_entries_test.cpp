#include "language_server/facts/folder_entries.hpp"

#include <gtest/gtest.h>

#include <cstddef>
#include <filesystem>
#include <set>
#include <string>

#include "support/temporary_folder.hpp"

namespace kelp::input::quill::language_server {

namespace {

namespace fs = std::filesystem;

std::set<std::string> names_in(const std::string& folder) {
  std::set<std::string> names;
  for_each_entry(folder, [&](const fs::directory_entry& entry) {
    names.insert(entry.path().filename().string());
  });
  return names;
}

TEST(FolderEntries, AreFilesAndFolders) {
  const TemporaryFolder folder;
  EXPECT_EQ(names_in(folder.path()), std::set<std::string>());
  folder.write("b.qin", "");
  fs::create_directory(folder.path("a"));
  EXPECT_EQ(names_in(folder.path()), (std::set<std::string>{"a", "b.qin"}));
}

TEST(FolderEntries, AreNoneOfWhatIsNoFolder) {
  const TemporaryFolder folder;
  EXPECT_EQ(names_in(folder.path("none")), std::set<std::string>());
  EXPECT_EQ(names_in(folder.write("a.qin", "")), std::set<std::string>());
}

TEST(FolderEntries, AreTenThousandAtMost) {
  const TemporaryFolder folder;
  const std::string file = folder.write("0", "");
  for (std::size_t i = 1; i < 9999; ++i) fs::create_hard_link(file, folder.path(std::to_string(i)));
  EXPECT_EQ(names_in(folder.path()).size(), 9999U);
  for (std::size_t i = 9999; i < 10'002; ++i) folder.write(std::to_string(i), "");
  EXPECT_EQ(names_in(folder.path()).size(), 10'000U);
}

}  // namespace

}  // namespace kelp::input::quill::language_server
