#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <ostream>
#include <string>
#include <vector>

#include "kelp/core/text.hpp"
#include "properties/obvious_text.hpp"
#include "text_samples.hpp"

namespace kelp::core::text {
namespace {

namespace obvious = kelp::input::quill::obvious;

using namespace std::string_literals;

using Lines = std::vector<std::string>;

struct Row {
  std::string name;
  std::string text;
  Lines lines;
};

void PrintTo(const Row& row, std::ostream* out) { *out << testing::PrintToString(row.text); }

class SplitLines : public testing::TestWithParam<Row> {};

TEST_P(SplitLines, Gives) { EXPECT_EQ(split_lines(GetParam().text), GetParam().lines); }

const Row rows[] = {
    {"NoLineOfNothing", "", {}},
    {"OneLineWithoutATerminator", "a", {"a"}},
    {"OneLineWithATerminator", "a\n", {"a"}},
    {"OneEmptyLineOfATerminator", "\n", {""}},
    {"TwoEmptyLinesOfTwoTerminators", "\n\n", {"", ""}},
    {"AnEmptyLineBetweenTwoOthers", "a\n\nb", {"a", "", "b"}},
    {"AnEmptyLineBeforeAnother", "\na", {"", "a"}},
    {"AnEmptyLineAtTheEnd", "a\n\n", {"a", ""}},
    {"LinesThatEndInCarriageReturnAndLineFeed", "a\r\nb\r\n", {"a", "b"}},
    {"AnEmptyLineOfCarriageReturnAndLineFeed", "\r\n", {""}},
    {"EmptyLinesOfCarriageReturnAndLineFeed", "\r\n\r\n", {"", ""}},
    {"BothKindsOfTerminators", "a\r\nb\nc", {"a", "b", "c"}},
    {"ALoneCarriageReturnInsideALine", "a\rb\n", {"a\rb"}},
    {"ALoneCarriageReturnAtTheEnd", "a\r", {"a\r"}},
    {"ALoneCarriageReturn", "\r", {"\r"}},
    {"ALoneCarriageReturnAfterALine", "a\n\r", {"a", "\r"}},
    {"OnlyOneCarriageReturnLess", "a\r\r\n", {"a\r"}},
    {"ACarriageReturnAfterALineFeed", "a\n\rb", {"a", "\rb"}},
    {"BlanksAsTheyAre", " a \n \n", {" a ", " "}},
    {"OtherVerticalWhiteSpaceAsItIs", "a\vb\fc\n", {"a\vb\fc"}},
    {"LineBreaksOfUnicodeAsTheyAre",
     "a\xC2\x85"
     "b\xE2\x80\xA8"
     "c",
     {"a\xC2\x85"
      "b\xE2\x80\xA8"
      "c"}},
    {"NulBytes", "a\0\nb\0"s, {"a\0"s, "b\0"s}},
};

INSTANTIATE_TEST_SUITE_P(Table, SplitLines, testing::ValuesIn(rows),
                         [](const auto& row) { return row.param.name; });

TEST(SplitLinesOfEveryByte, EndsALineAtALineFeedOnly) {
  for (const char c : every_byte()) {
    for (const std::string& text : {""s + c, "a"s + c + "b", "a"s + c + "\nb", "a\n"s + c}) {
      EXPECT_EQ(split_lines(text), obvious::lines(text)) << testing::PrintToString(text);
    }
  }
}

TEST(SplitLinesOfRandomTexts, EndsALineAtEachLineFeed) {
  for (const std::string& text : random_texts()) {
    const Lines lines = split_lines(ExactBlock(text).view());
    ASSERT_EQ(lines, obvious::lines(text)) << testing::PrintToString(text);
    const auto line_feeds = std::count(text.begin(), text.end(), '\n');
    const bool is_ended = text.empty() || text.back() == '\n';
    ASSERT_EQ(lines.size(), static_cast<std::size_t>(line_feeds) + (is_ended ? 0 : 1));
  }
}

TEST(SplitLinesOfManyTerminators, CountsEachOfThem) {
  // Lines are counted in blocks, and a block of only line feeds has the most of them.
  for (std::size_t size = 0; size < 1'000; ++size) {
    ASSERT_EQ(split_lines(std::string(size, '\n')), Lines(size)) << size;
    ASSERT_EQ(split_lines(std::string(size, '\n') + "a").size(), size + 1);
  }
}

TEST(SplitLinesOfOneTerminator, CountsItOnceInAnyPlace) {
  for (std::size_t place = 0; place < 400; ++place) {
    std::string text(400, 'a');
    text[place] = '\n';
    const Lines lines = split_lines(text);
    ASSERT_EQ(lines.size(), place == 399 ? 1U : 2U) << place;
    ASSERT_EQ(lines.capacity(), lines.size()) << place;
  }
}

TEST(SplitLinesOfALongText, TakesTheRoomOfItsLinesAndNoMore) {
  std::string text;
  for (int i = 0; i < 1'000; ++i) text += "H 0.0 0.0 0.0\n";
  for (const std::string& ending : {""s, "H"s}) {
    const Lines lines = split_lines(text + ending);
    EXPECT_EQ(lines.capacity(), lines.size());
  }
}

TEST(SplitLinesOfAnEmptyView, GivesNoLine) { EXPECT_EQ(split_lines(std::string_view()), Lines()); }

TEST(SplitLinesOfAView, LooksAtNothingAroundIt) {
  const std::string_view text = "a\r\nb\nc";
  EXPECT_EQ(split_lines(text.substr(0, 2)), Lines{"a\r"});
  EXPECT_EQ(split_lines(text.substr(2, 2)), (Lines{"", "b"}));
}

}  // namespace
}  // namespace kelp::core::text
