#include <gtest/gtest.h>

#include <ostream>
#include <string>

#include "kelp/core/text.hpp"
#include "properties/obvious_text.hpp"
#include "text_samples.hpp"

namespace kelp::core::text {
namespace {

namespace obvious = kelp::input::quill::obvious;

using namespace std::string_literals;

struct Row {
  std::string name;
  std::string text;
  std::string trimmed;
};

void PrintTo(const Row& row, std::ostream* out) { *out << testing::PrintToString(row.text); }

class Trim : public testing::TestWithParam<Row> {};

TEST_P(Trim, Gives) { EXPECT_EQ(trim(GetParam().text), GetParam().trimmed); }

const Row rows[] = {
    {"NothingOfNothing", "", ""},
    {"NothingOfBlanks", "   ", ""},
    {"NothingOfAllWhiteSpace", " \t\n\v\f\r", ""},
    {"AWordAsItIs", "word", "word"},
    {"ASingleByteAsItIs", "w", "w"},
    {"TheTextWithoutLeadingBlanks", "  word", "word"},
    {"TheTextWithoutTrailingBlanks", "word  ", "word"},
    {"TheTextWithoutOuterWhiteSpaceOfAnyKind", "\r\f\v\n\t word\t\n\v\f\r ", "word"},
    {"TheWhiteSpaceInside", "  two \t words ", "two \t words"},
    {"ASingleByteAmongBlanks", " w ", "w"},
    {"TheHashSign", "  # note ", "# note"},
    {"NulBytes", " \0 \0 "s, "\0 \0"s},
    {"BytesAbove7F", "\t\xC3\xA9\xA0\x85 ", "\xC3\xA9\xA0\x85"},
    {"TheLineWithoutACarriageReturn", "0 1\r", "0 1"},
};

INSTANTIATE_TEST_SUITE_P(Table, Trim, testing::ValuesIn(rows),
                         [](const auto& row) { return row.param.name; });

TEST(TrimOfEveryByte, RemovesTheWhiteSpaceOfTheCLocaleAndNothingElse) {
  for (const char c : every_byte()) {
    for (const std::string& text : {""s + c, c + "word"s, "word"s + c, "two"s + c + "words"}) {
      EXPECT_EQ(trim(text), obvious::trim(text)) << testing::PrintToString(text);
    }
  }
}

TEST(TrimOfRandomTexts, IsTheTextWithoutItsOuterWhiteSpace) {
  for (const std::string& text : random_texts()) {
    ASSERT_EQ(trim(ExactBlock(text).view()), obvious::trim(text)) << testing::PrintToString(text);
  }
}

TEST(TrimOfAnEmptyView, IsEmptyWithoutAnyText) { EXPECT_EQ(trim(std::string_view()), ""); }

TEST(TrimOfAView, LooksAtNothingAroundIt) {
  const std::string_view text = " a  b ";
  EXPECT_EQ(trim(text.substr(1, 2)), "a");
  EXPECT_EQ(trim(text.substr(2, 2)), "");
}

}  // namespace
}  // namespace kelp::core::text
