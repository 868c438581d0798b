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
  std::string lower;
  std::string upper;
};

void PrintTo(const Row& row, std::ostream* out) { *out << testing::PrintToString(row.text); }

class LetterCase : public testing::TestWithParam<Row> {};

TEST_P(LetterCase, IsLowered) { EXPECT_EQ(to_lower_copy(GetParam().text), GetParam().lower); }

TEST_P(LetterCase, IsRaised) { EXPECT_EQ(to_upper_copy(GetParam().text), GetParam().upper); }

const Row rows[] = {
    {"OfNothing", "", "", ""},
    {"OfMixedLetters", "XyzTraj", "xyztraj", "XYZTRAJ"},
    {"OfTheFirstAndLastLetters", "AZaz", "azaz", "AZAZ"},
    {"OfTheNeighboursOfTheLetters", "@[`{", "@[`{", "@[`{"},
    {"OfDigitsAndSigns", " 0 9 +-_#", " 0 9 +-_#", " 0 9 +-_#"},
    {"OfLettersBeyondAscii", "\xC3\x89t\xC3\xA9", "\xC3\x89t\xC3\xA9", "\xC3\x89T\xC3\xA9"},
    {"OfNulBytes", "A\0b"s, "a\0b"s, "A\0B"s},
    {"OfTextsLongerThanAnyRegister", std::string(300, 'q') + "Q", std::string(301, 'q'),
     std::string(301, 'Q')},
};

INSTANTIATE_TEST_SUITE_P(Table, LetterCase, testing::ValuesIn(rows),
                         [](const auto& row) { return row.param.name; });

TEST(LetterCaseOfEveryByte, IsThatOfTheCLocale) {
  for (const char c : every_byte()) {
    const std::string text(1, c);
    EXPECT_EQ(to_lower_copy(text), obvious::lower(text)) << testing::PrintToString(text);
    EXPECT_EQ(to_upper_copy(text), obvious::upper(text)) << testing::PrintToString(text);
  }
}

TEST(LetterCaseOfRandomTexts, IsThatOfTheCLocale) {
  for (const std::string& text : random_texts()) {
    const ExactBlock block(text);
    ASSERT_EQ(to_lower_copy(block.view()), obvious::lower(text));
    ASSERT_EQ(to_upper_copy(block.view()), obvious::upper(text));
  }
}

TEST(LetterCaseOfAnEmptyView, IsEmptyWithoutAnyText) {
  EXPECT_EQ(to_lower_copy(std::string_view()), "");
  EXPECT_EQ(to_upper_copy(std::string_view()), "");
}

}  // namespace
}  // namespace kelp::core::text
