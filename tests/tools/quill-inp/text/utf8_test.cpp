#include "quill-inp/text/utf8.hpp"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

namespace kelp::input::quill::tool {
namespace {

struct Row {
  std::string_view name;
  std::string_view text;
  bool is_utf8;
};

class Utf8 : public testing::TestWithParam<Row> {};

const Row rows[] = {
    {"NoText", "", true},
    {"Ascii", "opt(maxiter=50)", true},
    {"NulIsACharacter", std::string_view("a\0b", 3), true},
    {"LastOfOneByte", "\x7F", true},
    {"ContinuationAlone", "\x80", false},
    {"FirstOfTwoBytes", "\xC2\x80", true},
    {"LastOfTwoBytes", "\xDF\xBF", true},
    {"OverlongInTwoBytes", "\xC1\xBF", false},
    {"TwoBytesWithoutTheSecond", "\xC3", false},
    {"TwoBytesWithAnotherCharacter", "\xC3(", false},
    {"TwoBytesWithALeadingByte", "\xC3\xC3", false},
    {"FirstOfThreeBytes", "\xE0\xA0\x80", true},
    {"OverlongInThreeBytes", "\xE0\x9F\xBF", false},
    {"BeforeTheSurrogates", "\xED\x9F\xBF", true},
    {"FirstSurrogate", "\xED\xA0\x80", false},
    {"LastSurrogate", "\xED\xBF\xBF", false},
    {"AfterTheSurrogates", "\xEE\x80\x80", true},
    {"LastOfThreeBytes", "\xEF\xBF\xBF", true},
    {"ThreeBytesCutShort", "\xEF\xBF", false},
    {"FirstOfFourBytes", "\xF0\x90\x80\x80", true},
    {"OverlongInFourBytes", "\xF0\x8F\xBF\xBF", false},
    {"LastCodePoint", "\xF4\x8F\xBF\xBF", true},
    {"AfterTheLastCodePoint", "\xF4\x90\x80\x80", false},
    {"FourBytesCutShort", "\xF0\x90\x80", false},
    {"FiveBytes", "\xF8\x88\x80\x80\x80", false},
    {"NoLeadingByte", "\xFF", false},
    {"GoodThenBad", "\xC3\xA4 \xC3", false},
    {"Several", "\xC3\xA4\xE2\x82\xAC\xF0\x9F\x98\x80", true},
};

TEST_P(Utf8, IsToldFromOtherBytes) { EXPECT_EQ(is_utf8(GetParam().text), GetParam().is_utf8); }

INSTANTIATE_TEST_SUITE_P(Table, Utf8, testing::ValuesIn(rows),
                         [](const auto& row) { return std::string(row.param.name); });

TEST(FirstCharacter, HasTheNumberAndTheLengthOfEachForm) {
  EXPECT_EQ(first_character("A").value().code_point, U'A');
  EXPECT_EQ(first_character("A").value().length, 1U);
  EXPECT_EQ(first_character("\xC3\xA4z").value().code_point, U'\u00E4');
  EXPECT_EQ(first_character("\xC3\xA4z").value().length, 2U);
  EXPECT_EQ(first_character("\xE2\x82\xACz").value().code_point, U'\u20AC');
  EXPECT_EQ(first_character("\xE2\x82\xACz").value().length, 3U);
  EXPECT_EQ(first_character("\xF0\x9F\x98\x80z").value().code_point, U'\U0001F600');
  EXPECT_EQ(first_character("\xF0\x9F\x98\x80z").value().length, 4U);
}

}  // namespace
}  // namespace kelp::input::quill::tool
