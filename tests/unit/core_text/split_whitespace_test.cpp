#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <cstddef>
#include <iterator>
#include <numeric>
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

using Words = std::vector<std::string>;

struct Row {
  std::string name;
  std::string text;
  Words words;
};

void PrintTo(const Row& row, std::ostream* out) { *out << testing::PrintToString(row.text); }

class SplitWhitespace : public testing::TestWithParam<Row> {};

TEST_P(SplitWhitespace, Gives) { EXPECT_EQ(split_whitespace(GetParam().text), GetParam().words); }

const Row rows[] = {
    {"NoWordOfNothing", "", {}},
    {"NoWordOfBlanks", "  ", {}},
    {"NoWordOfAllWhiteSpace", " \t\n\v\f\r", {}},
    {"NoWordOfManyBlanks", std::string(200, ' '), {}},
    {"OneWord", "word", {"word"}},
    {"OneByte", "w", {"w"}},
    {"WordsAmongBlanksAndTabs", " a\tb  c ", {"a", "b", "c"}},
    {"WordsAmongAllWhiteSpace", "a b\tc\nd\ve\ff\rg", {"a", "b", "c", "d", "e", "f", "g"}},
    {"AnAtomLine",
     "O        0.000000      0.000000      0.117300",
     {"O", "0.000000", "0.000000", "0.117300"}},
    {"ALongAtomLine",
     "Cl      -12.345678901234      12.345678901234       0.117300000000\r",
     {"Cl", "-12.345678901234", "12.345678901234", "0.117300000000"}},
    {"NulBytesAsPartsOfWords", "a\0b \0"s, {"a\0b"s, "\0"s}},
    {"BytesAbove7FAsPartsOfWords",
     "\xC3\xA9 \xA0\x85 \xE2\x80\x83",
     {"\xC3\xA9", "\xA0\x85", "\xE2\x80\x83"}},
    {"ManyWords",
     "a b c d e f g h i j k l m n o p q r s t u v w x y z",
     {"a", "b", "c", "d", "e", "f", "g", "h", "i", "j", "k", "l", "m",
      "n", "o", "p", "q", "r", "s", "t", "u", "v", "w", "x", "y", "z"}},
};

INSTANTIATE_TEST_SUITE_P(Table, SplitWhitespace, testing::ValuesIn(rows),
                         [](const auto& row) { return row.param.name; });

TEST(SplitWhitespaceOfEveryByte, SplitsAtTheWhiteSpaceOfTheCLocaleInAnyPlace) {
  for (const std::size_t size : {1U, 2U, 7U, 8U, 9U, 15U, 16U, 17U, 63U, 64U, 65U, 130U}) {
    for (std::size_t place = 0; place < size; ++place) {
      for (const char c : every_byte()) {
        std::string text(size, 'w');
        text[place] = c;
        ASSERT_EQ(split_whitespace(ExactBlock(text).view()), obvious::words(text))
            << testing::PrintToString(text);
      }
    }
  }
}

TEST(SplitWhitespaceAtEveryTwoPlaces, FindsEachWord) {
  for (const std::size_t size : {8U, 17U, 64U, 72U}) {
    for (std::size_t first = 0; first < size; ++first) {
      for (std::size_t second = first; second < size; ++second) {
        std::string text(size, 'w');
        text[first] = '\t';
        text[second] = ' ';
        ASSERT_EQ(split_whitespace(text), obvious::words(text)) << text;
        std::replace_if(
            text.begin(), text.end(), [](char c) { return c != 'w'; }, 'x');
        std::replace(text.begin(), text.end(), 'w', ' ');
        ASSERT_EQ(split_whitespace(text), obvious::words(text)) << text;
      }
    }
  }
}

TEST(SplitWhitespaceOfRandomTexts, GivesEveryOtherByteInOrder) {
  for (const std::string& text : random_texts()) {
    const Words words = split_whitespace(ExactBlock(text).view());
    ASSERT_EQ(words, obvious::words(text)) << testing::PrintToString(text);
    std::string rest;
    std::copy_if(text.begin(), text.end(), std::back_inserter(rest),
                 [](unsigned char c) { return std::isspace(c) == 0; });
    ASSERT_EQ(std::accumulate(words.begin(), words.end(), ""s), rest);
  }
}

TEST(SplitWhitespaceOfATextOfAnyLength, TakesTheRoomOfItsWordsAndNoMore) {
  for (std::size_t size = 0; size < 300; ++size) {
    std::string text;
    while (text.size() < size) text += text.size() % 7 < 4 ? 'w' : ' ';
    const Words words = split_whitespace(text);
    ASSERT_EQ(words, obvious::words(text)) << text;
    ASSERT_EQ(words.capacity(), words.size()) << text;
  }
}

TEST(SplitWhitespaceOfLongWords, GivesThemWhole) {
  for (std::size_t size = 50; size < 200; ++size) {
    const std::string word(size, 'w');
    EXPECT_EQ(split_whitespace(word), Words{word});
    EXPECT_EQ(split_whitespace(" " + word + " "), Words{word});
    EXPECT_EQ(split_whitespace("a " + word + " " + word + " b"), (Words{"a", word, word, "b"}));
  }
}

TEST(SplitWhitespaceOfAnEmptyView, GivesNoWord) {
  EXPECT_EQ(split_whitespace(std::string_view()), Words());
}

TEST(SplitWhitespaceOfAView, LooksAtNothingAroundIt) {
  const std::string_view text = "abc def";
  EXPECT_EQ(split_whitespace(text.substr(1, 2)), Words{"bc"});
  EXPECT_EQ(split_whitespace(text.substr(1, 5)), (Words{"bc", "de"}));
}

}  // namespace
}  // namespace kelp::core::text
