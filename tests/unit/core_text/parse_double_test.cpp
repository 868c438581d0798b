#include <gtest/gtest.h>

#include <cstddef>
#include <limits>
#include <locale>
#include <ostream>
#include <string>

#include "kelp/core/text.hpp"
#include "parsed_double.hpp"

namespace kelp::core::text {
namespace {

using namespace std::string_literals;

using Limits = std::numeric_limits<double>;

struct Row {
  std::string name;
  std::string token;
  double value;
};

void PrintTo(const Row& row, std::ostream* out) { *out << testing::PrintToString(row.token); }

class ParseDouble : public testing::TestWithParam<Row> {};

TEST_P(ParseDouble, Reads) { EXPECT_EQ(parsed(GetParam().token), same_bits(GetParam().value)); }

const Row numbers[] = {
    {"Zero", "0", 0.0},
    {"MinusZero", "-0", -0.0},
    {"MinusZeroInFull", "-0.000000", -0.0},
    {"PlusZero", "+0.0", 0.0},
    {"AnInteger", "12", 12.0},
    {"AnIntegerWithAPoint", "12.", 12.0},
    {"AFractionWithoutAnInteger", ".5", 0.5},
    {"AMinus", "-1.5", -1.5},
    {"APlus", "+1.5", 1.5},
    {"AMinusBeforeAPoint", "-.5", -0.5},
    {"APlusBeforeAPoint", "+.5", 0.5},
    {"LeadingZeros", "0001.5", 1.5},
    {"TrailingZeros", "1.5000", 1.5},
    {"ACoordinate", "0.117300", 0.1173},
    {"ANegativeCoordinate", "-12.345678", -12.345678},
    {"ACoordinateWithAPlus", "+12.345678", 12.345678},
    {"ALargeCoordinate", "1234567.12345678", 1234567.12345678},
    {"ACoordinateOfManyDecimals", "1.234567890123456789", 1.234567890123456789},
    {"ASmallE", "1e3", 1000.0},
    {"ALargeE", "1E3", 1000.0},
    {"ASmallFortranD", "1d3", 1000.0},
    {"ALargeFortranD", "1D3", 1000.0},
    {"AFortranDouble", "-0.1173D+00", -0.1173},
    {"AFortranDoubleOfManyDigits", "0.12345678901234567D-03", 0.12345678901234567e-03},
    {"ANegativeExponent", "1.5e-3", 0.0015},
    {"APositiveExponent", "1.5e+3", 1500.0},
    {"AnExponentAfterAPoint", "1.e3", 1000.0},
    {"AnExponentAfterAFraction", ".5e1", 5.0},
    {"AnExponentOfZero", "1.5e0", 1.5},
    {"AnExponentOfMinusZero", "1.5d-0", 1.5},
    {"AnExponentWithLeadingZeros", "1e0000000000000000000000000003", 1000.0},
    {"TheLargestDouble", "1.7976931348623157e308", Limits::max()},
    {"ANumberThatRoundsToTheLargestDouble", "1.7976931348623158e308", Limits::max()},
    {"TheSmallestNormalDouble", "2.2250738585072014e-308", Limits::min()},
    {"TheLargestSubnormalDouble", "2.2250738585072009e-308", 2.2250738585072009e-308},
    {"TheSmallestDouble", "4.9406564584124654e-324", Limits::denorm_min()},
    {"ANumberNearerToTheSmallestDoubleThanToZero", "2.5e-324", Limits::denorm_min()},
    {"ANumberNearerToZeroThanToTheSmallestDouble", "2.4e-324", 0.0},
    {"ANegativeNumberNearerToZero", "-2.4e-324", -0.0},
    {"ANumberNearerToZeroInFortran", "2.4d-324", 0.0},
    {"ANumberNearerToTheSmallestDoubleInFortran", "2.5d-324", Limits::denorm_min()},
    {"ANumberTooSmallForItsExponent", "1e-999999999999999999999999999", 0.0},
    {"ANegativeNumberTooSmallForItsExponent", "-1e-999999999999999999999999999", -0.0},
    {"ZeroWithAnExponent", "0e5", 0.0},
    {"ZeroWithAnExponentInFortran", "-0.00d5", -0.0},
    {"ZeroWithALargeExponent", "0e999999999", 0.0},
    {"ZeroWithAnExponentBeyondMeasure", "0.0e99999999999999999999999999999", 0.0},
    {"ZeroWithAnExponentBeyondMeasureInFortran", "0.0d99999999999999999999999999999", 0.0},
    {"ZerosThatTheExponentMakesUpFor", "0." + std::string(499, '0') + "1e500", 1.0},
    {"ZerosThatTheExponentMakesUpForInFortran", "0." + std::string(499, '0') + "1d500", 1.0},
    {"DigitsThatTheExponentMakesUpFor", "1" + std::string(500, '0') + "e-500", 1.0},
    {"DigitsThatTheExponentMakesUpForInFortran", "1" + std::string(500, '0') + "d-500", 1.0},
    {"ALongIntegerBeforeAPoint", "00" + std::string(100, '0') + "12.5d0", 12.5},
    {"TheEvenNeighbourBelowAHalfwayNumber", "9007199254740993", 9007199254740992.0},
    {"TheEvenNeighbourAboveAHalfwayNumber", "9007199254740995", 9007199254740996.0},
    {"TheNeighbourAboveJustMoreThanHalfway", "9007199254740993." + std::string(2'000, '0') + "1",
     9007199254740994.0},
    {"TheNeighbourAboveJustMoreThanHalfwayInFortran",
     "9007199254740993." + std::string(2'000, '0') + "1d0", 9007199254740994.0},
    {"TheNeighbourBelowHalfwayWithZerosInFortran",
     "9007199254740993." + std::string(2'000, '0') + "d0", 9007199254740992.0},
    {"ZeroForAFractionTooSmall", "0." + std::string(400, '0') + "1", 0.0},
    {"ZeroForAnExponentTooSmallOfManyDigits", std::string(900, '9') + "e-99999999999", 0.0},
    {"Infinity", "inf", Limits::infinity()},
    {"InfinityInCapitals", "INF", Limits::infinity()},
    {"InfinityInMixedCase", "iNf", Limits::infinity()},
    {"InfinityInFull", "infinity", Limits::infinity()},
    {"InfinityInFullInMixedCase", "InFiNiTy", Limits::infinity()},
    {"MinusInfinity", "-inf", -Limits::infinity()},
    {"PlusInfinity", "+Infinity", Limits::infinity()},
    {"NotANumber", "nan", Limits::quiet_NaN()},
    {"NotANumberInMixedCase", "NaN", Limits::quiet_NaN()},
    {"NotANumberInCapitals", "+NAN", Limits::quiet_NaN()},
    {"MinusNotANumber", "-nan", -Limits::quiet_NaN()},
};

INSTANTIATE_TEST_SUITE_P(Numbers, ParseDouble, testing::ValuesIn(numbers),
                         [](const auto& row) { return row.param.name; });

struct NoNumber {
  std::string name;
  std::string token;
};

void PrintTo(const NoNumber& row, std::ostream* out) { *out << testing::PrintToString(row.token); }

class ParseDoubleRefuses : public testing::TestWithParam<NoNumber> {};

TEST_P(ParseDoubleRefuses, ANumberWith) { EXPECT_EQ(parsed(GetParam().token), no_number); }

const NoNumber others[] = {
    {"NoByte", ""},
    {"ASignOnly", "+"},
    {"AMinusOnly", "-"},
    {"APointOnly", "."},
    {"ASignAndAPointOnly", "+."},
    {"AMinusAndAPointOnly", "-."},
    {"TwoPoints", "1.2.3"},
    {"TwoPointsInARow", "1..2"},
    {"TwoPointsInACoordinate", "1.2345.678"},
    {"TwoPointsBeforeTheDigits", "..5"},
    {"AnExponentOnly", "e5"},
    {"AnExponentAfterAPointOnly", ".e5"},
    {"AnExponentAfterASignOnly", "+e5"},
    {"NoDigitInTheExponent", "1e"},
    {"NoDigitInTheFortranExponent", "1d"},
    {"NoDigitAfterTheSignOfTheExponent", "1e+"},
    {"NoDigitAfterTheMinusOfTheExponent", "1D-"},
    {"TwoSignsInTheExponent", "1e+-5"},
    {"TwoSignsInTheFortranExponent", "1d-+5"},
    {"TwoMinusesInTheFortranExponent", "1d--5"},
    {"TwoExponents", "1e5e5"},
    {"TwoExponentLetters", "1ed5"},
    {"APointInTheExponent", "1e5.0"},
    {"APointInTheFortranExponent", "1d5.0"},
    {"ALetterAfterTheFortranExponent", "1d5x"},
    {"AQuadrupleExponent", "1q5"},
    {"TheLetterBeforeD", "1c5"},
    {"TheLetterAfterE", "1f5"},
    {"TwoSigns", "+-1"},
    {"TwoMinuses", "--1"},
    {"TwoPluses", "++1"},
    {"AMinusAfterAMinusInACoordinate", "--0.117300"},
    {"ASignAfterTheNumber", "1-"},
    {"ABlankBefore", " 1"},
    {"ABlankBehind", "1 "},
    {"ABlankAfterTheSign", "- 1"},
    {"ABlankAfterACoordinate", "0.117300 "},
    {"ABlankInPlaceOfTheWholePart", " .117300"},
    {"ACarriageReturnBehind", "1\r"},
    {"HexadecimalDigits", "0x10"},
    {"HexadecimalDigitsAndABinaryExponent", "0x1.8p3"},
    {"ABinaryExponent", "1p3"},
    {"ASuffixOfC", "1f"},
    {"AnotherSuffixOfC", "1.0L"},
    {"ADecimalComma", "1,5"},
    {"ADecimalCommaInACoordinate", "0,117300"},
    {"GroupedDigits", "1,000.0"},
    {"QuotedDigits", "1'000.0"},
    {"ANulBehind", "1\0"s},
    {"ANulAfterACoordinate", "0.117300\0"s},
    {"ANulBefore",
     "\0"
     "1"s},
    {"ANulInside",
     "1\0"
     "0.117300"s},
    {"DigitsBeyondAscii", "\xD9\xA1"},
    {"ATruncatedName", "in"},
    {"ATruncatedLongName", "infin"},
    {"ALongNameShortOfALetter", "infinit"},
    {"ALongNameAndALetter", "infinityy"},
    {"ANameAndANul", "inf\0"s},
    {"ANameAndADigit", "inf1"},
    {"TwoLettersOfNan", "na"},
    {"NanAndALetter", "nann"},
    {"NanAndAPayload", "nan(1)"},
    {"NanAndAnEmptyPayload", "nan()"},
    {"TwoSignsBeforeAName", "+-inf"},
    {"TwoMinusesBeforeAName", "--nan"},
    {"ABlankBeforeAName", " inf"},
    {"AWord", "abc"},
    {"TheMagnitudeOfTwoToThe1024th", "1.7976931348623159077e308"},
    {"AMagnitudeJustTooLarge", "1.7976931348623159e308"},
    {"ANegativeMagnitudeJustTooLarge", "-1.7976931348623159e308"},
    {"AMagnitudeJustTooLargeInFortran", "1.7976931348623159d308"},
    {"AMagnitudeOfTenToThe309th", "1e309"},
    {"AMagnitudeOfTenToThe309thInFortran", "1d309"},
    {"AMagnitudeJustBelowTenToThe309thInFortran", "9.99d308"},
    {"AMagnitudeTooLargeForItsDigits", "1" + std::string(400, '0')},
    {"AMagnitudeTooLargeForItsExponent", "1e99999999999999999999"},
    {"ANegativeMagnitudeTooLargeForItsExponent", "-1d99999999999999999999"},
    {"AMagnitudeTooLargeForItsExponentOfManyDigits", std::string(900, '9') + "e99999999999"},
    {"ASmallFractionTooLargeForItsExponent", "0.0001e99999999999999999999"},
};

INSTANTIATE_TEST_SUITE_P(NoNumbers, ParseDoubleRefuses, testing::ValuesIn(others),
                         [](const auto& row) { return row.param.name; });

TEST(ParseDoubleOfAView, LooksAtNothingAroundIt) {
  const std::string_view text = "19.12345678901e1";
  EXPECT_EQ(parsed(text.substr(1, 2)), same_bits(9.0));
  EXPECT_EQ(parsed(text.substr(1, 8)), same_bits(9.123456));
  EXPECT_EQ(parsed(text.substr(1, 13)), same_bits(9.12345678901));
  EXPECT_EQ(parsed(text.substr(1, 14)), no_number);
  EXPECT_EQ(parsed(text.substr(2, 1)), no_number);
  EXPECT_EQ(parsed(text.substr(1, 0)), no_number);
  EXPECT_EQ(parsed(std::string_view()), no_number);
}

/// Numbers as large parts of the world write them.
class CommaAndGroups : public std::numpunct<char> {
 protected:
  char do_decimal_point() const override { return ','; }
  char do_thousands_sep() const override { return '.'; }
  std::string do_grouping() const override { return "\3"; }
};

TEST(ParseDoubleInALocaleOfDecimalCommas, StillReadsPointsOnly) {
  const std::locale before = std::locale::global(std::locale(std::locale(), new CommaAndGroups));
  EXPECT_EQ(parsed("1.5"), same_bits(1.5));
  EXPECT_EQ(parsed("0.117300"), same_bits(0.1173));
  EXPECT_EQ(parsed("1.5d0"), same_bits(1.5));
  EXPECT_EQ(parsed("1,5"), no_number);
  EXPECT_EQ(parsed("1.000.000"), no_number);
  std::locale::global(before);
}

}  // namespace
}  // namespace kelp::core::text
