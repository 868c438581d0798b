#include "language_server/project/file_address.hpp"

#include <gtest/gtest.h>

#include <string>

namespace kelp::input::quill::language_server {

namespace {

struct Row {
  std::string address;
  std::string path;
};

TEST(FileAddress, IsAPath) {
  const Row rows[] = {{"file:///home/a.qin", "/home/a.qin"},
                      {"file:///", "/"},
                      {"FILE:///a", "/a"},
                      {"file:///a%20b%C3%A9%c3%a9", "/a b\xC3\xA9\xC3\xA9"},
                      {"file:///a%2Fb%25", "/a/b%"},
                      {"file:///100%", "/100%"},
                      {"file:///a%2", "/a%2"},
                      {"file:///a%zz", "/a%zz"},
                      {"file://localhost/a", "/a"},
                      {"file:///a?b#c", "/a"},
                      {"file://elsewhere/a", ""},
                      {"file://", ""},
                      {"untitled:Untitled-1", ""},
                      {"https://host/a", ""},
                      {"", ""}};
  for (const Row& row : rows) EXPECT_EQ(path_of_address(row.address), row.path) << row.address;
}

TEST(FileAddress, IsMadeOfAPath) {
  EXPECT_EQ(address_of_path("/home/a-b_c.~/1"), "file:///home/a-b_c.~/1");
  EXPECT_EQ(address_of_path("/a b#?%\xC3\xA9"), "file:///a%20b%23%3F%25%C3%A9");
}

TEST(ReferencedPath, IsFromTheFolderOfTheInput) {
  EXPECT_EQ(referenced_path("/a/b", "c.xyz"), "/a/b/c.xyz");
  EXPECT_EQ(referenced_path("/a/b", "./../c.xyz"), "/a/c.xyz");
  EXPECT_EQ(referenced_path("/a/b", "/c.xyz"), "/c.xyz");
  EXPECT_EQ(folder_of("/a/b/c.qin"), "/a/b");
  EXPECT_EQ(folder_of(""), "");
}

}  // namespace

}  // namespace kelp::input::quill::language_server
