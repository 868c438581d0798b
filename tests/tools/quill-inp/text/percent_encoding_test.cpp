#include "quill-inp/text/percent_encoding.hpp"

#include <gtest/gtest.h>

#include <string>

namespace kelp::input::quill::tool {
namespace {

struct Row {
  std::string path;
  std::string encoded;
};

TEST(PercentEncoding, IsOfAllBytesButThosePlainInAPath) {
  const Row rows[] = {{"", ""},
                      {"/home/a-b_c.~/1", "/home/a-b_c.~/1"},
                      {"azAZ09", "azAZ09"},
                      {"`{@[/:", "%60%7B%40%5B/%3A"},
                      {"/a b#?%", "/a%20b%23%3F%25"},
                      {"\xC3\xA9\xFF", "%C3%A9%FF"},
                      {std::string("\0\x7F", 2), "%00%7F"}};
  for (const Row& row : rows) {
    EXPECT_EQ(percent_encoded(row.path), row.encoded);
    EXPECT_EQ(percent_decoded(row.encoded), row.path);
  }
}

TEST(PercentEncoding, StandsForEveryByte) {
  std::string all;
  for (int byte = 0; byte < 256; ++byte) all += static_cast<char>(byte);
  EXPECT_EQ(percent_decoded(percent_encoded(all)), all);
}

TEST(PercentEncoding, IsReadInEitherCaseAndOnlyWhereItIsComplete) {
  const Row rows[] = {{"\xC3\xA9", "%c3%A9"}, {"\xAB\xFA", "%aB%Fa"},
                      {"100%", "100%"},       {"a%2", "a%2"},
                      {"a%zz", "a%zz"},       {"a%2g", "a%2g"},
                      {"a%g2", "a%g2"},       {"%%", "%%25"},
                      {"%20", "%2520"},       {"/", "%2F"}};
  for (const Row& row : rows) EXPECT_EQ(percent_decoded(row.encoded), row.path) << row.encoded;
}

}  // namespace
}  // namespace kelp::input::quill::tool
