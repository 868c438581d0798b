#include "language_server/documents/line_starts.hpp"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace kelp::input::quill::language_server {

namespace {

std::vector<std::string> lines_of(const std::string& text, const LineStarts& starts) {
  std::vector<std::string> lines;
  for (std::size_t line = 0; line < starts.count(); ++line)
    lines.emplace_back(starts.content(line, text));
  return lines;
}

struct Row {
  std::string name;
  std::string text;
  std::vector<std::string> lines;
};

class LineStartsOf : public testing::TestWithParam<Row> {};

TEST_P(LineStartsOf, AreThoseOfTheProtocol) {
  EXPECT_EQ(lines_of(GetParam().text, LineStarts(GetParam().text)), GetParam().lines);
}

const Row rows[] = {
    {"Nothing", "", {""}},
    {"NoLineEnd", "ab", {"ab"}},
    {"LineFeed", "ab\ncd", {"ab", "cd"}},
    {"LineFeedAtTheEnd", "ab\n", {"ab", ""}},
    {"CarriageReturnAndLineFeed", "ab\r\ncd\r\n", {"ab", "cd", ""}},
    {"LoneCarriageReturn", "ab\rcd\r", {"ab", "cd", ""}},
    {"LineFeedAndCarriageReturnAreTwoLineEnds", "ab\n\rcd", {"ab", "", "cd"}},
    {"CarriageReturnBeforeTheTwo", "a\r\r\nb", {"a", "", "b"}},
    {"OnlyLineEnds", "\n\r\n\r", {"", "", "", ""}},
};

INSTANTIATE_TEST_SUITE_P(Table, LineStartsOf, testing::ValuesIn(rows),
                         [](const auto& row) { return row.param.name; });

TEST(LineStarts, KnowTheLineOfEveryByte) {
  const LineStarts starts("a\r\nb\n");
  const std::size_t expected[] = {0, 0, 0, 1, 1, 2};
  for (std::size_t offset = 0; offset < std::size(expected); ++offset)
    EXPECT_EQ(starts.line_at(offset), expected[offset]) << offset;
}

// Every change of every short text of these bytes gives the lines of the new text.
TEST(LineStarts, FollowEveryChange) {
  const std::vector<std::string> texts = {"",       "a",     "\n",     "\r",       "\r\n", "a\nb",
                                          "a\r\nb", "\n\r",  "\r\r\n", "a\rb\nc",  "\n\n", "\r\r",
                                          "ab\r\n", "\r\na", "a\n\rb", "\r\n\r\n", "abc"};
  for (const std::string& old_text : texts) {
    for (const std::string& inserted : texts) {
      for (std::size_t offset = 0; offset <= old_text.size(); ++offset) {
        for (std::size_t removed = 0; removed <= old_text.size() - offset; ++removed) {
          std::string text = old_text;
          text.replace(offset, removed, inserted);
          LineStarts starts(old_text);
          starts.replace(offset, removed, inserted.size(), text);
          ASSERT_EQ(lines_of(text, starts), lines_of(text, LineStarts(text)))
              << testing::PrintToString(old_text) << " " << offset << " " << removed << " "
              << testing::PrintToString(inserted);
        }
      }
    }
  }
}

}  // namespace

}  // namespace kelp::input::quill::language_server
