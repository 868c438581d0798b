#include <gtest/gtest.h>

#include <cctype>
#include <ostream>
#include <string>

#include "kelp/chem/elements.hpp"

namespace kelp::chem::elements {
namespace {

using namespace std::string_literals;

struct Row {
  std::string name;
  std::string symbol;
  std::string normal;
};

void PrintTo(const Row& row, std::ostream* out) { *out << testing::PrintToString(row.symbol); }

class NormalizeSymbol : public testing::TestWithParam<Row> {};

TEST_P(NormalizeSymbol, Gives) {
  EXPECT_EQ(normalize_symbol(GetParam().symbol), GetParam().normal);
}

const Row rows[] = {
    {"NothingForNothing", "", ""},
    {"OneLetterInUpperCase", "h", "H"},
    {"OneCapitalAsItIs", "H", "H"},
    {"ASymbolInSmallLetters", "cl", "Cl"},
    {"ASymbolInCapitals", "CL", "Cl"},
    {"ASymbolInTheWrongCase", "cL", "Cl"},
    {"ASymbolAsItIs", "Cl", "Cl"},
    {"TheFirstAndLastLetters", "az", "Az"},
    {"TheFirstAndLastCapitals", "AZ", "Az"},
    {"LettersThatAreNoSymbol", "xYZ", "Xyz"},
    {"ALongWord", "cHLORINE", "Chlorine"},
    {"AWordLongerThanAShortString", std::string(100, 'Q'), "Q" + std::string(99, 'q')},
    {"LettersAfterADigit", "13C", "13c"},
    {"LettersAfterABlank", " CL ", " cl "},
    {"LettersAfterANul", "\0CL"s, "\0cl"s},
    {"TheNeighboursOfTheLetters", "@[`{@[`{", "@[`{@[`{"},
    {"BytesAbove7F", "\xC3\xA9\xC3\x89", "\xC3\xA9\xC3\x89"},
};

INSTANTIATE_TEST_SUITE_P(Table, NormalizeSymbol, testing::ValuesIn(rows),
                         [](const auto& row) { return row.param.name; });

TEST(NormalizeSymbolOfEveryByte, HasTheLetterCaseOfTheCLocale) {
  for (int byte = 0; byte < 256; ++byte) {
    const char c = static_cast<char>(byte);
    const char upper = static_cast<char>(std::toupper(byte));
    const char lower = static_cast<char>(std::tolower(byte));
    EXPECT_EQ(normalize_symbol(""s + c), ""s + upper) << byte;
    EXPECT_EQ(normalize_symbol(""s + c + c + c), ""s + upper + lower + lower) << byte;
  }
}

TEST(NormalizeSymbolOfAView, LooksAtNothingAroundIt) {
  const std::string_view text = "nACL";
  EXPECT_EQ(normalize_symbol(text.substr(1, 2)), "Ac");
  EXPECT_EQ(normalize_symbol(text.substr(1, 0)), "");
  EXPECT_EQ(normalize_symbol(std::string_view()), "");
}

}  // namespace
}  // namespace kelp::chem::elements
