#include "reader/coordinate_lines.hpp"

#include <gtest/gtest.h>

#include <array>
#include <cstdint>
#include <limits>
#include <optional>
#include <ostream>
#include <string>
#include <utility>

#include "support/comparison.hpp"
#include "support/printing.hpp"
#include "support/read_line.hpp"

namespace kelp::input::quill {
namespace {

using namespace std::string_literals;

struct ChargeRow {
  std::string name;
  std::string line;
  std::optional<std::pair<std::int32_t, std::int32_t>> numbers = std::nullopt;
};

void PrintTo(const ChargeRow& row, std::ostream* out) { *out << testing::PrintToString(row.line); }

class ChargeLine : public testing::TestWithParam<ChargeRow> {};

TEST_P(ChargeLine, IsReadAs) {
  const auto read = parse_charge_and_multiplicity(GetParam().line);
  ASSERT_EQ(read.has_value(), GetParam().numbers.has_value());
  if (read) {
    EXPECT_EQ(std::make_pair(read->charge, read->multiplicity), *GetParam().numbers);
  }
}

const ChargeRow charges[] = {
    {"ChargeAndThenMultiplicity", "0 1", {{0, 1}}},
    {"BlanksOfAllKinds", " \t-1\t\v 2\f\r", {{-1, 2}}},
    {"PlusSigns", "+1 +2", {{1, 2}}},
    {"LeadingZeros", "00 003", {{0, 3}}},
    {"AnyMultiplicity", "1 0", {{1, 0}}},
    {"ANegativeMultiplicity", "1 -3", {{1, -3}}},
    {"TheLargestNumbers", "2147483647 2147483647", {{2147483647, 2147483647}}},
    {"TheSmallestNumbers", "-2147483648 -2147483648", {{-2147483647 - 1, -2147483647 - 1}}},
    {"OnePastTheLargestCharge", "2147483648 1"},
    {"OnePastTheLargestMultiplicity", "0 2147483648"},
    {"OnePastTheSmallestCharge", "-2147483649 1"},
    {"Nothing", ""},
    {"Blanks", "  "},
    {"OneNumber", "0"},
    {"ThreeNumbers", "0 1 1"},
    {"AFractionalMultiplicity", "0 1.0"},
    {"AFractionalCharge", "0.0 1"},
    {"AWordForTheMultiplicity", "0 x"},
    {"AWordForTheCharge", "x 1"},
    {"AnExponent", "0 1e0"},
    {"AComma", "0, 1"},
    {"ASignAlone", "- 1"},
    {"TextAfterTheMultiplicity", "0 1;"},
    {"ANulByteAfterTheMultiplicity", "0 1\0"s},
    {"ANulByteBetweenTheNumbers", "0\0001"s},
};
INSTANTIATE_TEST_SUITE_P(Table, ChargeLine, testing::ValuesIn(charges),
                         [](const auto& row) { return row.param.name; });

struct ReferenceRow {
  std::string name;
  std::string line;
  std::string keyword;
  std::string path;
};

void PrintTo(const ReferenceRow& row, std::ostream* out) {
  *out << testing::PrintToString(row.line);
}

class ReferenceLine : public testing::TestWithParam<ReferenceRow> {};

TEST_P(ReferenceLine, HasAKeywordAndAPath) {
  std::string keyword = "before";
  std::string path = "before";
  EXPECT_TRUE(parse_xyz_reference(GetParam().line, keyword, path));
  EXPECT_EQ(keyword, GetParam().keyword);
  EXPECT_EQ(path, GetParam().path);
}

const ReferenceRow references[] = {
    {"AFile", "XYZ a.xyz", "XYZ", "a.xyz"},
    {"AFileInLowerCase", "xyz A.xyz", "XYZ", "A.xyz"},
    {"AFileInMixedCase", "xYz a.xyz", "XYZ", "a.xyz"},
    {"AFileWithoutAPath", "XYZ", "XYZ", ""},
    {"AFileWithABlankPath", "xyz \t ", "XYZ", ""},
    {"ATrajectory", "XYZTRAJ t.xyz", "XYZTRAJ", "t.xyz"},
    {"ATrajectoryInLowerCase", "xyztraj t.xyz", "XYZTRAJ", "t.xyz"},
    {"ATrajectoryInMixedCase", "XyzTraj t.xyz", "XYZTRAJ", "t.xyz"},
    {"ATrajectoryWithoutAPath", "XYZTRAJ", "XYZTRAJ", ""},
    {"OuterBlanksGo", "\t XYZ \t a.xyz\v\f\r", "XYZ", "a.xyz"},
    {"InnerBlanksStay", "XYZ my  file.xyz", "XYZ", "my  file.xyz"},
    {"QuotesStay", "XYZ 'my file.xyz'", "XYZ", "'my file.xyz'"},
    {"ASecondKeywordIsAPath", "XYZ XYZTRAJ", "XYZ", "XYZTRAJ"},
    {"AHashIsPartOfThePath", "XYZ a.xyz # b", "XYZ", "a.xyz # b"},
    {"NumbersAreAPath", "XYZ 0 0 0", "XYZ", "0 0 0"},
    {"BytesOutsideAscii", "XYZ \xC3\xA9\xFF", "XYZ", "\xC3\xA9\xFF"},
    {"ANulByteInThePath", "XYZ a\0b"s, "XYZ", "a\0b"s},
};
INSTANTIATE_TEST_SUITE_P(Table, ReferenceLine, testing::ValuesIn(references),
                         [](const auto& row) { return row.param.name; });

struct TextRow {
  std::string name;
  std::string line;
};

void PrintTo(const TextRow& row, std::ostream* out) { *out << testing::PrintToString(row.line); }

class OtherLine : public testing::TestWithParam<TextRow> {};

TEST_P(OtherLine, IsNotAReferenceAndChangesNothing) {
  std::string keyword = "before";
  std::string path = "before";
  EXPECT_FALSE(parse_xyz_reference(GetParam().line, keyword, path));
  EXPECT_EQ(keyword, "before");
  EXPECT_EQ(path, "before");
}

const TextRow others[] = {
    {"Nothing", ""},
    {"Blanks", " \t\r"},
    {"OneLetterShortOfFile", "XY a"},
    {"OneLetterMoreThanFile", "XYZZ a"},
    {"BetweenFileAndTrajectory", "XYZT a"},
    {"OneLetterShortOfTrajectory", "XYZTRA a"},
    {"OneLetterMoreThanTrajectory", "XYZTRAJS a"},
    {"AColon", "XYZ: a"},
    {"AnEqualsSign", "XYZ=a"},
    {"AHash", "#XYZ a"},
    {"TheKeywordAsTheSecondWord", "a XYZ"},
    {"TheKeywordInQuotes", "'XYZ' a"},
    {"ANulByteBehindTheKeyword", "XYZ\0 a"s},
    {"AnAtom", "O 0 0 0"},
};
INSTANTIATE_TEST_SUITE_P(Table, OtherLine, testing::ValuesIn(others),
                         [](const auto& row) { return row.param.name; });

struct AtomRow {
  std::string name;
  std::string line;
  std::optional<AtomRecord> atom = std::nullopt;
};

void PrintTo(const AtomRow& row, std::ostream* out) { *out << testing::PrintToString(row.line); }

class AtomLine : public testing::TestWithParam<AtomRow> {};

TEST_P(AtomLine, IsReadAs) { EXPECT_EQ(read_atom_line(GetParam().line), GetParam().atom); }

constexpr double infinity = std::numeric_limits<double>::infinity();

const AtomRow atoms[] = {
    {"XThenYThenZ", "O 1 2 3", {{"O", 1.0, 2.0, 3.0}}},
    {"BlanksOfAllKinds", " \tO\v0\f0.5\t 0 \r", {{"O", 0.0, 0.5, 0.0}}},
    {"ASymbolInLowerCase", "fe 0 0 0", {{"Fe", 0.0, 0.0, 0.0}}},
    {"ASymbolInUpperCase", "FE 0 0 0", {{"Fe", 0.0, 0.0, 0.0}}},
    {"ASymbolInReversedCase", "fE 0 0 0", {{"Fe", 0.0, 0.0, 0.0}}},
    {"ASymbolOfNoElement", "X 0 0 0", {{"X", 0.0, 0.0, 0.0}}},
    {"ALongWord", "WATER 0 0 0", {{"Water", 0.0, 0.0, 0.0}}},
    {"AConstraintKeyword", "A 1 2 3", {{"A", 1.0, 2.0, 3.0}}},
    {"WordsThatAreNumbers", "nan inf -inf +Infinity", {{"Nan", infinity, -infinity, infinity}}},
    {"Signs", "H -1.5 +2.5 -0.0", {{"H", -1.5, 2.5, -0.0}}},
    {"NoDigitOnOneSideOfThePoint", "H .5 5. -.5", {{"H", 0.5, 5.0, -0.5}}},
    {"Exponents", "H 1e-3 2E+2 3e2", {{"H", 0.001, 200.0, 300.0}}},
    {"FortranExponents", "H 1d-3 2D+2 3d2", {{"H", 0.001, 200.0, 300.0}}},
    {"ExactlyAsParsed", "H 0.1 0.30000000000000004 1e-320", {{"H", 0.1, 0.1 + 0.2, 1e-320}}},
    {"Nothing", ""},
    {"Blanks", "  "},
    {"OneToken", "O"},
    {"ThreeTokens", "O 0 0"},
    {"FiveTokens", "O 0 0 0 0"},
    {"FiveTokensOfWhichOneIsAWord", "O 0 0 0 x"},
    {"ADigitBehindTheSymbol", "C1 0 0 0"},
    {"DigitsBeforeTheSymbol", "13C 0 0 0"},
    {"AChargeBehindTheSymbol", "Fe2+ 0 0 0"},
    {"ADigitInTheMiddleOfTheSymbol", "F2e 0 0 0"},
    {"AnUnderscoreInTheSymbol", "C_a 0 0 0"},
    {"ANumberForTheSymbol", "6 0 0 0"},
    {"AHashBeforeTheSymbol", "#C 0 0 0"},
    {"UmlautsInTheSymbol", "\xC3\x84 0 0 0"},
    {"ANulByteBehindTheSymbol", "C\0 0 0 0"s},
    {"AWordForX", "O x 0 0"},
    {"AWordForY", "O 0 x 0"},
    {"AWordForZ", "O 0 0 x"},
    {"ALetterBehindX", "O 0x 0 0"},
    {"ALetterBehindY", "O 0 0x 0"},
    {"ALetterBehindZ", "O 0 0 0x"},
    {"ADecimalComma", "O 0,5 0 0"},
    {"ANumberTooLarge", "O 0 0 1e999"},
    {"AHexadecimalNumber", "O 0x1p0 0 0"},
    {"TwoSigns", "O 0 --1 0"},
    {"ANulByteBehindANumber", "O 0 0 0\0"s},
};
TEST_P(AtomLine, HasATokenUnlikeAnAtomUnlessItIsOne) {
  EXPECT_EQ(find_token_unlike_an_atom(GetParam().line).has_value(), !GetParam().atom);
}

INSTANTIATE_TEST_SUITE_P(Table, AtomLine, testing::ValuesIn(atoms),
                         [](const auto& row) { return row.param.name; });

struct TokenRow {
  std::string name;
  std::string line;
  std::size_t offset;
  std::string token;
};

void PrintTo(const TokenRow& row, std::ostream* out) { *out << testing::PrintToString(row.line); }

class TokenUnlikeAnAtom : public testing::TestWithParam<TokenRow> {};

TEST_P(TokenUnlikeAnAtom, IsFoundInItsPlace) {
  const std::string_view line = GetParam().line;
  const auto token = find_token_unlike_an_atom(line);
  ASSERT_TRUE(token.has_value());
  EXPECT_EQ(*token, GetParam().token);
  EXPECT_EQ(token->data() - line.data(), static_cast<std::ptrdiff_t>(GetParam().offset));
}

const TokenRow tokens[] = {
    {"TheSymbol", " O1 0 0 0", 1, "O1"},
    {"TheSymbolBeforeANumber", "O1 x 0 0", 0, "O1"},
    {"X", "H 1,5 1,5 0", 2, "1,5"},
    {"Y", "H 1 1,5 0", 4, "1,5"},
    {"Z", "H 0 0 0x", 6, "0x"},
    {"ATokenThatIsPartOfOneBeforeIt", "xx 0 x 0", 5, "x"},
    {"TheFifth", "H 0 0 1 # note", 8, "#"},
    {"TheFifthBeforeOneOfTheWrongForm", "1 O 0 0 0", 8, "0"},
    {"TheEndOfALineOfThree", "H 0 0 ", 6, ""},
    {"TheEndOfNothing", "", 0, ""},
};
INSTANTIATE_TEST_SUITE_P(Table, TokenUnlikeAnAtom, testing::ValuesIn(tokens),
                         [](const auto& row) { return row.param.name; });

bool is_ascii_letter(int byte) {
  return ('A' <= byte && byte <= 'Z') || ('a' <= byte && byte <= 'z');
}

TEST(AtomSymbol, IsMadeOfTheLettersAToZAndOfNoOtherByte) {
  for (int byte = 0; byte < 256; ++byte) {
    const std::string c(1, static_cast<char>(byte));
    for (const std::string& symbol : {c, "C" + c + "e"}) {
      EXPECT_EQ(read_atom_line(symbol + " 0 0 0").has_value(), is_ascii_letter(byte))
          << "byte " << byte << " in " << testing::PrintToString(symbol);
    }
  }
}

struct RestRow {
  std::string name;
  std::string text;
  std::string rest;
};

void PrintTo(const RestRow& row, std::ostream* out) { *out << testing::PrintToString(row.text); }

class RestAfterFirstWord : public testing::TestWithParam<RestRow> {};

TEST_P(RestAfterFirstWord, Is) {
  EXPECT_EQ(rest_after_first_word(GetParam().text), GetParam().rest);
}

const RestRow rests[] = {
    {"NothingOfNothing", "", ""},
    {"NothingOfABlank", " ", ""},
    {"NothingOfBlanks", " \t", ""},
    {"NothingOfOneWord", "POST", ""},
    {"NothingOfOneWordAndBlanks", "POST \t", ""},
    {"ASecondWord", "POST a", "a"},
    {"AllWordsButTheFirst", "POST a  b c", "a  b c"},
    {"NoBlanksAtItsStart", "POST \t\v\f\r\n a", "a"},
    {"TheBlanksAtItsEndToo", "POST a \t", "a \t"},
    {"FoundBehindLeadingBlanks", " \tPOST a", "a"},
    {"NothingOfOneWordBehindBlanks", " POST", ""},
    {"ANulByteNoBlank", "POST\0a b"s, "b"},
    {"ANoBreakSpaceNoBlank", "POST\xA0 a", "a"},
};
INSTANTIATE_TEST_SUITE_P(Table, RestAfterFirstWord, testing::ValuesIn(rests),
                         [](const auto& row) { return row.param.name; });

}  // namespace
}  // namespace kelp::input::quill
