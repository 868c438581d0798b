#include <gtest/gtest.h>

#include <cstddef>
#include <optional>
#include <ostream>
#include <set>
#include <string>
#include <vector>

#include "kelp/chem/elements.hpp"
#include "properties/obvious_elements.hpp"

namespace kelp::chem::elements {
namespace {

using namespace std::string_literals;

using input::quill::obvious::element_symbols;

const std::vector<std::string> symbols(element_symbols.begin(), element_symbols.end());

TEST(AtomicNumber, IsThePlaceOfTheSymbolInThePeriodicTable) {
  for (std::size_t i = 0; i < symbols.size(); ++i) {
    EXPECT_EQ(atomic_number_from_symbol(symbols[i]), static_cast<int>(i + 1)) << symbols[i];
  }
}

std::string every_byte() {
  std::string bytes;
  for (int value = 0; value < 256; ++value) bytes += static_cast<char>(value);
  return bytes;
}

TEST(AtomicNumber, OfAllTextsOfOneAndTwoBytesIsThatOfTheElementsOnly) {
  const std::string bytes = every_byte();
  std::vector<std::string> texts;
  for (const char first : bytes) {
    texts.push_back(""s + first);
    for (const char second : bytes) texts.push_back(""s + first + second);
  }
  ASSERT_EQ(texts.size(), 65'792U);
  std::set<std::string> known;
  for (const std::string& text : texts) {
    if (atomic_number_from_symbol(text)) known.insert(text);
  }
  EXPECT_EQ(known, std::set<std::string>(symbols.begin(), symbols.end()));
}

TEST(AtomicNumber, IsThatOfNoTextOfThreeLettersOrMore) {
  std::string letters;
  for (int letter = 0; letter < 26; ++letter) {
    letters += static_cast<char>('A' + letter);
    letters += static_cast<char>('a' + letter);
  }
  for (const char first : letters) {
    for (const char second : letters) {
      for (const char third : letters) {
        const std::string text = ""s + first + second + third;
        ASSERT_EQ(atomic_number_from_symbol(text), std::nullopt) << text;
      }
    }
  }
  for (const std::string& symbol : symbols) {
    EXPECT_EQ(atomic_number_from_symbol(symbol + "\0"s), std::nullopt) << symbol;
    EXPECT_EQ(atomic_number_from_symbol(symbol + " "), std::nullopt) << symbol;
    EXPECT_EQ(atomic_number_from_symbol(symbol + std::string(100, 'e')), std::nullopt) << symbol;
  }
}

struct Row {
  std::string name;
  std::string symbol;
  std::optional<int> number = std::nullopt;
};

void PrintTo(const Row& row, std::ostream* out) { *out << testing::PrintToString(row.symbol); }

class AtomicNumberOf : public testing::TestWithParam<Row> {};

TEST_P(AtomicNumberOf, Is) {
  EXPECT_EQ(atomic_number_from_symbol(GetParam().symbol), GetParam().number);
}

const Row rows[] = {
    {"Hydrogen", "H", 1},
    {"Chlorine", "Cl", 17},
    {"Oganesson", "Og", 118},
    {"NothingForNothing", ""},
    {"NothingForChlorineInSmallLetters", "cl"},
    {"NothingForChlorineInCapitals", "CL"},
    {"NothingForChlorineInTheWrongCase", "cL"},
    {"NothingForHydrogenInSmallLetters", "h"},
    {"NothingForDeuterium", "D"},
    {"NothingForTritium", "T"},
    {"NothingForADummyAtom", "X"},
    {"NothingForALongDummyAtom", "Xx"},
    {"NothingForAGhostAtom", "Bq"},
    {"NothingForAProvisionalName", "Uue"},
    {"NothingForAnAtomicNumber", "17"},
    {"NothingForANumberedSymbol", "C1"},
    {"NothingForABlankBefore", " H"},
    {"NothingForABlankBehind", "H "},
    {"NothingForANul", "\0"s},
    {"NothingForASymbolAndANul", "H\0"s},
    {"NothingForAName", "Chlorine"},
};

INSTANTIATE_TEST_SUITE_P(Table, AtomicNumberOf, testing::ValuesIn(rows),
                         [](const auto& row) { return row.param.name; });

TEST(AtomicNumber, OfAViewLooksAtNothingAroundIt) {
  const std::string_view text = "NaCl";
  EXPECT_EQ(atomic_number_from_symbol(text.substr(0, 2)), 11);
  EXPECT_EQ(atomic_number_from_symbol(text.substr(0, 1)), 7);
  EXPECT_EQ(atomic_number_from_symbol(text.substr(0, 0)), std::nullopt);
  EXPECT_EQ(atomic_number_from_symbol(std::string_view()), std::nullopt);
}

TEST(AtomicNumber, OfTheNormalSpellingIsKnownForEveryLetterCase) {
  for (std::size_t i = 0; i < symbols.size(); ++i) {
    std::string upper = symbols[i];
    for (char& c : upper) c = static_cast<char>(c & ~0x20);
    std::string lower = symbols[i];
    for (char& c : lower) c = static_cast<char>(c | 0x20);
    const int number = static_cast<int>(i + 1);
    EXPECT_EQ(atomic_number_from_symbol(normalize_symbol(upper)), number) << upper;
    EXPECT_EQ(atomic_number_from_symbol(normalize_symbol(lower)), number) << lower;
  }
}

}  // namespace
}  // namespace kelp::chem::elements
