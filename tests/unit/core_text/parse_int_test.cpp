#include <gtest/gtest.h>

#include <cstdint>
#include <optional>
#include <ostream>
#include <random>
#include <string>
#include <vector>

#include "kelp/core/text.hpp"
#include "properties/obvious_text.hpp"
#include "text_samples.hpp"

namespace kelp::core::text {
namespace {

namespace obvious = kelp::input::quill::obvious;

using namespace std::string_literals;

constexpr int untouched = -987654;

/// What try_parse_int reads; the test fails if it returns false and has changed the value.
std::optional<int> parsed(std::string_view token) {
  int value = untouched;
  if (try_parse_int(token, value)) return value;
  EXPECT_EQ(value, untouched) << testing::PrintToString(token);
  return std::nullopt;
}

struct Row {
  std::string name;
  std::string token;
  std::optional<int> value = std::nullopt;
};

void PrintTo(const Row& row, std::ostream* out) { *out << testing::PrintToString(row.token); }

class ParseInt : public testing::TestWithParam<Row> {};

TEST_P(ParseInt, Reads) { EXPECT_EQ(parsed(GetParam().token), GetParam().value); }

const Row tokens_of_numbers[] = {
    {"Zero", "0", 0},
    {"OneDigit", "7", 7},
    {"AMinus", "-3", -3},
    {"APlus", "+3", 3},
    {"MinusZero", "-0", 0},
    {"PlusZero", "+0", 0},
    {"LeadingZeros", "007", 7},
    {"LeadingZerosAfterASign", "-007", -7},
    {"MoreLeadingZerosThanAnIntHasDigits", std::string(100, '0') + "42", 42},
    {"TheLargestInt", "2147483647", 2147483647},
    {"TheLargestIntWithAPlus", "+2147483647", 2147483647},
    {"TheSmallestInt", "-2147483648", -2147483647 - 1},
};

const Row other_tokens[] = {
    {"Nothing", ""},
    {"APlusAlone", "+"},
    {"AMinusAlone", "-"},
    {"TwoPluses", "++1"},
    {"TwoMinuses", "--1"},
    {"PlusAndMinus", "+-1"},
    {"MinusAndPlus", "-+1"},
    {"ALetterAfterTheDigits", "12x"},
    {"ALetterBeforeTheDigits", "x12"},
    {"ASignAfterTheDigits", "12-"},
    {"ABlankBefore", " 1"},
    {"ABlankBehind", "1 "},
    {"ABlankAfterTheSign", "+ 1"},
    {"ACarriageReturnBehind", "1\r"},
    {"TwoNumbers", "1 2"},
    {"APoint", "1."},
    {"AFraction", "1.0"},
    {"AnExponent", "1e3"},
    {"HexadecimalDigits", "0x10"},
    {"GroupedDigits", "1,000"},
    {"QuotedDigits", "1'000"},
    {"ANulBehind", "1\0"s},
    {"ANulBefore", "\0001"s},
    {"DigitsBeyondAscii", "\xD9\xA1"},
    {"OneMoreThanTheLargestInt", "2147483648"},
    {"OneMoreThanTheLargestIntWithAPlus", "+2147483648"},
    {"OneLessThanTheSmallestInt", "-2147483649"},
    {"TheSmallestIntWithoutItsSign", "2147483648"},
    {"ANumberThatFitsALong", "9223372036854775807"},
    {"ANumberThatFitsNothing", std::string(1'000, '9')},
    {"ANegativeNumberThatFitsNothing", "-" + std::string(1'000, '9')},
};

INSTANTIATE_TEST_SUITE_P(Numbers, ParseInt, testing::ValuesIn(tokens_of_numbers),
                         [](const auto& row) { return row.param.name; });
INSTANTIATE_TEST_SUITE_P(NoNumbers, ParseInt, testing::ValuesIn(other_tokens),
                         [](const auto& row) { return row.param.name; });

/// Everything within 3 of the powers of two up to 2^33 and of ten up to 10^11, and its negative.
std::vector<std::int64_t> numbers_near_powers() {
  std::vector<std::int64_t> centres;
  for (int exponent = 0; exponent <= 33; ++exponent) {
    centres.push_back(std::int64_t{1} << exponent);
  }
  std::int64_t power_of_ten = 1;
  for (int exponent = 0; exponent <= 11; ++exponent, power_of_ten *= 10) {
    centres.push_back(power_of_ten);
  }
  std::vector<std::int64_t> numbers;
  for (const std::int64_t centre : centres) {
    for (std::int64_t number = centre - 3; number <= centre + 3; ++number) {
      numbers.push_back(number);
      numbers.push_back(-number);
    }
  }
  return numbers;
}

TEST(ParseIntNearPowers, ReadsWhatFitsAnIntAndNothingElse) {
  for (const std::int64_t number : numbers_near_powers()) {
    const std::string digits = std::to_string(number);
    const bool fits = number >= INT32_MIN && number <= INT32_MAX;
    const auto value = fits ? std::optional<int>(static_cast<int>(number)) : std::nullopt;
    EXPECT_EQ(parsed(digits), value) << digits;
    EXPECT_EQ(obvious::integer(digits), value) << digits;
    if (number >= 0) {
      EXPECT_EQ(parsed("+" + digits), value) << digits;
    }
  }
}

TEST(ParseIntOfEveryShortToken, ReadsASignAndDigitsOnly) {
  for (const std::string& token : every_short_text("09+-.e x", 6)) {
    ASSERT_EQ(parsed(token), obvious::integer(token)) << testing::PrintToString(token);
  }
}

TEST(ParseIntOfEveryByte, TakesDigitsOnly) {
  for (const char c : every_byte()) {
    for (const std::string& token : {""s + c, c + "1"s, "1"s + c, "-"s + c, "1"s + c + "2"}) {
      EXPECT_EQ(parsed(token), obvious::integer(token)) << testing::PrintToString(token);
    }
  }
}

TEST(ParseIntOfRandomNumbers, GivesWhatStrtollGives) {
  std::mt19937_64 random(20260102);
  for (int i = 0; i < 100'000; ++i) {
    const auto bits = static_cast<std::int64_t>(random());
    const std::string token = std::to_string(bits >> (random() % 64));
    ASSERT_EQ(parsed(ExactBlock(token).view()), obvious::integer(token)) << token;
  }
}

TEST(ParseIntOfAView, LooksAtNothingAroundIt) {
  const std::string_view text = "1234";
  EXPECT_EQ(parsed(text.substr(1, 2)), 23);
  EXPECT_EQ(parsed(text.substr(1, 0)), std::nullopt);
  EXPECT_EQ(parsed(std::string_view()), std::nullopt);
}

}  // namespace
}  // namespace kelp::core::text
