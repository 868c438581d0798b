#include "writer/floating_point_text.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <limits>
#include <ostream>
#include <string>
#include <vector>

#include "number_samples.hpp"

namespace kelp::input::quill {

namespace {

using Limits = std::numeric_limits<double>;

std::string fixed_text(double number, int decimals) {
  std::string text(longest_fixed(decimals), '?');
  text.resize(static_cast<std::size_t>(write_fixed(text.data(), number, decimals) - text.data()));
  return text;
}

std::string general_text(double number, int digits) {
  std::string text(longest_general(digits), '?');
  text.resize(static_cast<std::size_t>(write_general(text.data(), number, digits) - text.data()));
  return text;
}

std::string shortest_text(double number) {
  char text[longest_shortest];
  return std::string(text, write_shortest(text, number));
}

std::string shortest_fixed_text(double number) {
  char text[longest_shortest_fixed];
  return std::string(text, write_shortest_fixed(text, number));
}

std::string shortest_scientific_text(double number) {
  char text[longest_shortest];
  return std::string(text, write_shortest_scientific(text, number));
}

struct Row {
  const char* name;
  double number;
  std::string_view fixed;    // with two decimals
  std::string_view general;  // of three digits
  std::string_view shortest;
};

void PrintTo(const Row& row, std::ostream* out) { *out << row.name; }

const Row rows[] = {
    {"Zero", 0.0, "0.00", "0", "0"},
    {"NegativeZero", -0.0, "-0.00", "-0", "-0"},
    {"AnInteger", 180.0, "180.00", "180", "180"},
    {"AnIntegerWithAnExponentOfEqualLength", 1e4, "10000.00", "1e+04", "10000"},
    {"AnIntegerWithAShorterExponent", 1e5, "100000.00", "1e+05", "1e+05"},
    {"AnIntegerOfTwoDigitsWithAnExponentOfEqualLength", 1.2e6, "1200000.00", "1.2e+06", "1200000"},
    {"AnIntegerOfTwoDigitsWithAShorterExponent", 1.2e7, "12000000.00", "1.2e+07", "1.2e+07"},
    {"AFraction", -1.25, "-1.25", "-1.25", "-1.25"},
    {"AFractionThatIsRounded", 0.1 + 0.2, "0.30", "0.3", "0.30000000000000004"},
    {"ASmallFraction", 0.001, "0.00", "0.001", "0.001"},
    {"ASmallFractionOfTwoDigits", 0.00012, "0.00", "0.00012", "0.00012"},
    {"ASmallerFraction", 0.0001, "0.00", "0.0001", "1e-04"},
    {"ASmallerFractionOfThreeDigits", 0.0000123, "0.00", "1.23e-05", "1.23e-05"},
    {"AllDigits", 123456789012345678.0, "123456789012345680.00", "1.23e+17", "123456789012345680"},
    {"MoreThanAllDigits", 123456789012345678901.0, "123456789012345683968.00", "1.23e+20",
     "123456789012345683968"},
    {"MuchMoreThanAllDigits", 1.2345678901234568e22, "12345678901234567741440.00", "1.23e+22",
     "1.2345678901234568e+22"},
    {"TheSmallestNormalNumber", -Limits::min(), "-0.00", "-2.23e-308", "-2.2250738585072014e-308"},
    {"TheSmallestNumber", Limits::denorm_min(), "0.00", "4.94e-324", "5e-324"},
    {"Infinity", Limits::infinity(), "inf", "inf", "inf"},
    {"NegativeInfinity", -Limits::infinity(), "-inf", "-inf", "-inf"},
    {"NotANumber", std::copysign(Limits::quiet_NaN(), 1.0), "nan", "nan", "nan"},
    {"NegativeNotANumber", std::copysign(Limits::quiet_NaN(), -1.0), "-nan", "-nan", "-nan"},
    {"SignalingNotANumber", std::copysign(Limits::signaling_NaN(), 1.0), "nan", "nan", "nan"},
};

class FloatingPointText : public testing::TestWithParam<Row> {};

TEST_P(FloatingPointText, IsTheSameEverywhere) {
  const Row& row = GetParam();
  EXPECT_EQ(fixed_text(row.number, 2), row.fixed);
  EXPECT_EQ(general_text(row.number, 3), row.general);
  EXPECT_EQ(shortest_text(row.number), row.shortest);
}

INSTANTIATE_TEST_SUITE_P(Table, FloatingPointText, testing::ValuesIn(rows),
                         [](const auto& row) { return std::string(row.param.name); });

TEST(FloatingPointText, OfTheLargestNumberFillsTheRoom) {
  for (const int decimals : {0, 1, 6}) {
    const std::size_t without_point = decimals == 0 ? 1 : 0;
    EXPECT_EQ(fixed_text(-Limits::max(), decimals).size(), longest_fixed(decimals) - without_point);
  }
  EXPECT_EQ(general_text(-Limits::max(), 17), "-1.7976931348623157e+308");
  EXPECT_EQ(longest_general(17), general_text(-Limits::max(), 17).size());
  EXPECT_EQ(longest_shortest, shortest_text(-Limits::max()).size());
}

struct NotationRow {
  const char* name;
  double number;
  std::string_view fixed;
  std::string_view scientific;
};

void PrintTo(const NotationRow& row, std::ostream* out) { *out << row.name; }

const NotationRow notation_rows[] = {
    {"Zero", 0.0, "0", "0e+00"},
    {"NegativeZero", -0.0, "-0", "-0e+00"},
    {"AnInteger", 180.0, "180", "1.8e+02"},
    {"AFraction", -12.75, "-12.75", "-1.275e+01"},
    {"ASmallFraction", 0.0000123, "0.0000123", "1.23e-05"},
    {"OneDigitWithAPointBeforeIt", 0.5, "0.5", "5e-01"},
    {"MoreThanAllDigits", 123456789012345678901.0, "123456789012345683968",
     "1.2345678901234568e+20"},
    {"Infinity", Limits::infinity(), "inf", "inf"},
    {"NegativeNotANumber", std::copysign(Limits::quiet_NaN(), -1.0), "-nan", "-nan"},
};

class ShortestTextInOneNotation : public testing::TestWithParam<NotationRow> {};

TEST_P(ShortestTextInOneNotation, IsTheSameEverywhere) {
  EXPECT_EQ(shortest_fixed_text(GetParam().number), GetParam().fixed);
  EXPECT_EQ(shortest_scientific_text(GetParam().number), GetParam().scientific);
}

INSTANTIATE_TEST_SUITE_P(Table, ShortestTextInOneNotation, testing::ValuesIn(notation_rows),
                         [](const auto& row) { return std::string(row.param.name); });

TEST(ShortestTextInOneNotation, OfTheSmallestNumberFillsTheRoom) {
  const double small = -1.1125369292536007e-308;  // of 17 digits
  EXPECT_EQ(shortest_fixed_text(small), "-0." + std::string(307, '0') + "11125369292536007");
  EXPECT_EQ(shortest_fixed_text(-Limits::denorm_min()), "-0." + std::string(323, '0') + "5");
}

TEST(ShortestText, ReadsBackAndHasNoDigitTooMany) {
  std::vector<double> numbers = random_bit_patterns();
  numbers.resize(3000);
  for (const double number : numbers) {
    if (!std::isfinite(number)) continue;
    const std::string text = shortest_text(number);
    ASSERT_EQ(std::strtod(text.c_str(), nullptr), number) << text;
    for (int digits = 1; digits <= 17; ++digits) {
      char printed[64];
      std::snprintf(printed, sizeof printed, "%.*e", digits - 1, number);
      if (std::strtod(printed, nullptr) != number) continue;
      ASSERT_LE(text.size(), std::string(printed).size()) << text << ' ' << printed;
      break;
    }
  }
}

}  // namespace

}  // namespace kelp::input::quill
