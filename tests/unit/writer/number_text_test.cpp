#include "writer/number_text.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <cstdio>
#include <limits>
#include <ostream>
#include <random>
#include <string_view>
#include <vector>

#include "number_samples.hpp"

namespace kelp::input::quill {

namespace {

using Limits = std::numeric_limits<double>;
using IntLimits = std::numeric_limits<std::int32_t>;

std::string coordinate_text(double number) {
  std::string text;
  append_coordinate(text, number);
  return text;
}

std::string scan_value_text(double number) {
  char field[longest_scan_value];
  return std::string(field, write_scan_value(field, number));
}

std::string integer_text(std::int32_t number) {
  char field[longest_integer];
  return std::string(field, write_integer(field, number));
}

struct NumberRow {
  const char* name;
  double number;
  std::string_view text;
};

void PrintTo(const NumberRow& row, std::ostream* out) { *out << row.name; }

std::string name_of_row(const testing::TestParamInfo<NumberRow>& row) { return row.param.name; }

const NumberRow coordinate_rows[] = {
    {"Zero", 0.0, "      0.000000"},
    {"NegativeZero", -0.0, "     -0.000000"},
    {"FourDecimals", 0.1173, "      0.117300"},
    {"NegativeWithADecimal", -12.5, "    -12.500000"},
    {"AllDecimalsDiffer", 1.234567, "      1.234567"},
    {"LeadingZerosAmongTheDecimals", 10.000001, "     10.000001"},
    {"FillsTheFieldExactly", 1234567.0, "1234567.000000"},
    {"NegativeFillsTheFieldExactly", -123456.25, "-123456.250000"},
    {"OneWiderThanTheField", -1234567.0, "-1234567.000000"},
    {"WiderThanTheField", 123456789.5, "123456789.500000"},
    {"RoundsUpToANewDigit", 9.9999996, "     10.000000"},
    {"RoundsDown", 9.9999994, "      9.999999"},
    {"TieGoesDownToEven", 1.0 / 128.0, "      0.007812"},
    {"TieGoesUpToEven", 3.0 / 128.0, "      0.023438"},
    {"NegativeTieGoesDownToEven", -1.0 / 128.0, "     -0.007812"},
    {"NegativeTieGoesUpToEven", -3.0 / 128.0, "     -0.023438"},
    {"BelowHalfAMillionth", 0.49e-6, "      0.000000"},
    {"JustBelowHalfAMillionth", 0.5e-6, "      0.000000"},
    {"AboveHalfAMillionth", 0.51e-6, "      0.000001"},
    {"NegativeThatRoundsToZeroKeepsItsSign", -1e-9, "     -0.000000"},
    {"SmallestDenormal", Limits::denorm_min(), "      0.000000"},
    {"TwoToTheFortyThirdLessOneUlp", 8796093022207.998046875, "8796093022207.998047"},
    {"TwoToTheFortyThird", 8796093022208.0, "8796093022208.000000"},
    {"TwoToTheFortyThirdPlusOneUlp", 8796093022208.001953125, "8796093022208.001953"},
    {"LargeInteger", 1e22, "10000000000000000000000.000000"},
    {"Infinity", Limits::infinity(), "           inf"},
    {"NegativeInfinity", -Limits::infinity(), "          -inf"},
    {"NotANumber", std::copysign(Limits::quiet_NaN(), 1.0), "           nan"},
    {"NegativeNotANumber", std::copysign(Limits::quiet_NaN(), -1.0), "          -nan"},
};

class CoordinateText : public testing::TestWithParam<NumberRow> {};

TEST_P(CoordinateText, IsAsWritten) {
  EXPECT_EQ(coordinate_text(GetParam().number), GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(Table, CoordinateText, testing::ValuesIn(coordinate_rows), name_of_row);

const NumberRow scan_value_rows[] = {
    {"WholeNumberHasNoPoint", 2.0, "2"},
    {"OneDecimal", 1.5, "1.5"},
    {"Zero", 0.0, "0"},
    {"NegativeZero", -0.0, "-0"},
    {"Negative", -0.25, "-0.25"},
    {"SixDigits", 123456.0, "123456"},
    {"TheSeventhDigitIsRounded", 123456.7, "123457"},
    {"SevenDigitsRoundUpIntoAnExponent", 999999.5, "1e+06"},
    {"SixNinesStay", 999999.0, "999999"},
    {"TenToTheSixth", 1000000.0, "1e+06"},
    {"SixDigitsAndAnExponent", 1234567.0, "1.23457e+06"},
    {"SmallestWithoutExponent", 0.0001, "0.0001"},
    {"SmallerTakesAnExponent", 0.00001, "1e-05"},
    {"SixDigitsBelowOne", 0.1234567, "0.123457"},
    {"TieGoesDownToEven", 100000.5, "100000"},
    {"TieGoesUpToEven", 100001.5, "100002"},
    {"Huge", 1e300, "1e+300"},
    {"LargestDouble", Limits::max(), "1.79769e+308"},
    {"SmallestDenormal", Limits::denorm_min(), "4.94066e-324"},
    {"LongestText", -1.23456e-300, "-1.23456e-300"},
    {"Infinity", Limits::infinity(), "inf"},
    {"NegativeInfinity", -Limits::infinity(), "-inf"},
    {"NotANumber", std::copysign(Limits::quiet_NaN(), 1.0), "nan"},
    {"NegativeNotANumber", std::copysign(Limits::quiet_NaN(), -1.0), "-nan"},
};

class ScanValueText : public testing::TestWithParam<NumberRow> {};

TEST_P(ScanValueText, IsAsWritten) {
  EXPECT_EQ(scan_value_text(GetParam().number), GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(Table, ScanValueText, testing::ValuesIn(scan_value_rows), name_of_row);

struct IntegerRow {
  const char* name;
  std::int32_t number;
  std::string_view text;
};

void PrintTo(const IntegerRow& row, std::ostream* out) { *out << row.name; }

const IntegerRow integer_rows[] = {
    {"Zero", 0, "0"},
    {"One", 1, "1"},
    {"LastOfOneDigit", 9, "9"},
    {"FirstOfTwoDigits", 10, "10"},
    {"LastOfTwoDigits", 99, "99"},
    {"FirstOfThreeDigits", 100, "100"},
    {"ZeroAmongThreeDigits", 305, "305"},
    {"LastOfThreeDigits", 999, "999"},
    {"FirstOfFourDigits", 1000, "1000"},
    {"LastOfFourDigits", 9999, "9999"},
    {"FirstOfFiveDigits", 10000, "10000"},
    {"MinusOne", -1, "-1"},
    {"NoGrouping", 1234567, "1234567"},
    {"TrailingZerosStay", -1000, "-1000"},
    {"Greatest", IntLimits::max(), "2147483647"},
    {"Least", IntLimits::min(), "-2147483648"},
    {"OneAboveTheLeast", IntLimits::min() + 1, "-2147483647"},
};

class IntegerText : public testing::TestWithParam<IntegerRow> {};

TEST_P(IntegerText, IsAsWritten) { EXPECT_EQ(integer_text(GetParam().number), GetParam().text); }

INSTANTIATE_TEST_SUITE_P(Table, IntegerText, testing::ValuesIn(integer_rows),
                         [](const auto& row) { return std::string(row.param.name); });

TEST(IntegerText, EqualsThatOfTheStandardLibraryForRandomNumbers) {
  std::mt19937 random(20240611);
  for (int i = 0; i < 20'000; ++i) {
    const auto number = static_cast<std::int32_t>(random());
    ASSERT_EQ(integer_text(number), std::to_string(number));
  }
}

std::string printed_as_coordinate(double number) {
  char text[512];
  const int length = std::snprintf(text, sizeof text, "%14.6f", number);
  return std::string(text, static_cast<std::size_t>(length));
}

std::string printed_as_scan_value(double number) {
  char text[64];
  const int length = std::snprintf(text, sizeof text, "%g", number);
  return std::string(text, static_cast<std::size_t>(length));
}

/// The numbers that are not written as printf writes them, at most ten.
std::vector<std::string> differences(const std::vector<double>& numbers,
                                     std::string (*written)(double),
                                     std::string (*printed)(double)) {
  std::vector<std::string> found;
  for (const double number : numbers) {
    const std::string text = written(number);
    const std::string expected = printed(number);
    if (text == expected) continue;
    char exact[64];
    std::snprintf(exact, sizeof exact, "%a", number);
    found.push_back(std::string(exact) + ": \"" + text + "\" for \"" + expected + "\"");
    if (found.size() == 10) break;
  }
  return found;
}

struct SampleRow {
  const char* name;
  std::vector<double> (*numbers)();
};

void PrintTo(const SampleRow& row, std::ostream* out) { *out << row.name; }

const SampleRow sample_rows[] = {
    {"SpecialNumbers", special_numbers},
    {"PowersAndTheirNeighbours", powers_and_neighbours},
    {"RandomBitPatterns", random_bit_patterns},
    {"UniformNumbers", uniform_numbers},
    {"ShortDecimals", short_decimals},
    {"EveryExponentOfTheExactPath", every_small_exponent},
    {"ExactTiesBetweenMillionths", exact_ties},
    {"NumbersNearestToHalfMillionths", near_ties},
};

class NumberText : public testing::TestWithParam<SampleRow> {};

TEST_P(NumberText, OfCoordinatesIsThatOfPrintf) {
  EXPECT_THAT(differences(GetParam().numbers(), coordinate_text, printed_as_coordinate),
              testing::IsEmpty());
}

TEST_P(NumberText, OfScanValuesIsThatOfPrintf) {
  EXPECT_THAT(differences(GetParam().numbers(), scan_value_text, printed_as_scan_value),
              testing::IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(Samples, NumberText, testing::ValuesIn(sample_rows),
                         [](const auto& row) { return std::string(row.param.name); });

TEST(IntegerText, EqualsThatOfTheStandardLibraryForEveryNumberOfUpToFiveDigits) {
  for (std::int32_t number = -99'999; number <= 99'999; ++number)
    ASSERT_EQ(integer_text(number), std::to_string(number));
}

/// Writes into a field of `size` characters between others and returns all of them.
template <typename Number>
std::string text_around_field(char* (*write)(char*, Number), Number number, std::size_t size) {
  std::string text(size + 2, '.');
  write(text.data() + 1, number);
  return text;
}

TEST(NumberText, DoesNotChangeWhatIsAroundItsField) {
  EXPECT_EQ(text_around_field(write_integer, std::int32_t{7}, 1), ".7.");
  EXPECT_EQ(text_around_field(write_integer, std::int32_t{42}, 2), ".42.");
  EXPECT_EQ(text_around_field(write_integer, std::int32_t{305}, 3), ".305.");
  EXPECT_EQ(text_around_field(write_integer, std::int32_t{9999}, 4), ".9999.");
  EXPECT_EQ(text_around_field(write_integer, IntLimits::min(), longest_integer), ".-2147483648.");
  EXPECT_EQ(text_around_field(write_scan_value, 0.5, 3), ".0.5.");
  EXPECT_EQ(text_around_field(write_scan_value, -1.23457e-300, longest_scan_value),
            ".-1.23457e-300.");
}

TEST(CoordinateText, IsAppendedToWhatIsThereAlready) {
  std::string text = "S";
  append_coordinate(text, 1.5);
  append_coordinate(text, 1e15);
  append_coordinate(text, Limits::infinity());
  append_coordinate(text, -1234567.0);
  EXPECT_EQ(text, "S      1.5000001000000000000000.000000           inf-1234567.000000");
}

}  // namespace

}  // namespace kelp::input::quill
