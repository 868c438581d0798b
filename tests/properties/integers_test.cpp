// Every integer near a power of two or ten, where ranges end and where digits are counted.

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <string>
#include <vector>

#include "kelp/core/text.hpp"

namespace kelp::input::quill {
namespace {

constexpr std::int64_t reach = 3;

std::vector<std::int64_t> powers() {
  std::vector<std::int64_t> list;
  for (int exponent = 0; exponent <= 33; ++exponent) list.push_back(std::int64_t{1} << exponent);
  std::int64_t power_of_ten = 1;
  for (int exponent = 0; exponent <= 11; ++exponent) {
    list.push_back(power_of_ten);
    power_of_ten *= 10;
  }
  return list;
}

class IntegersNear : public testing::TestWithParam<std::int64_t> {};

void expect_read(const std::string& token, std::int64_t number) {
  const bool fits =
      std::numeric_limits<int>::min() <= number && number <= std::numeric_limits<int>::max();
  constexpr int untouched = 20240521;
  int value = untouched;
  EXPECT_EQ(core::text::try_parse_int(token, value), fits) << token;
  EXPECT_EQ(value, fits ? number : untouched) << token;
}

TEST_P(IntegersNear, AreReadWhenTheyFit) {
  for (std::int64_t number = GetParam() - reach; number <= GetParam() + reach; ++number) {
    const std::string digits = std::to_string(number < 0 ? -number : number);
    const std::string sign = number < 0 ? "-" : "";
    const std::string opposite = number < 0 ? "+" : "-";
    expect_read(sign + digits, number);
    expect_read(sign + "000000000000" + digits, number);
    expect_read(opposite + digits, -number);
    if (number >= 0) expect_read("+" + digits, number);
  }
}

TEST_P(IntegersNear, AreNotReadWithAnythingElseAround) {
  const std::string digits = std::to_string(GetParam());
  for (const std::string& token :
       {digits + " ", " " + digits, digits + ".", digits + "x", "x" + digits, "+-" + digits,
        "-+" + digits, "--" + digits, digits + "-", digits + std::string(1, '\0')}) {
    int value = 17;
    EXPECT_FALSE(core::text::try_parse_int(token, value)) << token;
    EXPECT_EQ(value, 17);
  }
}

INSTANTIATE_TEST_SUITE_P(PowersOfTwoAndTen, IntegersNear, testing::ValuesIn(powers()));

}  // namespace
}  // namespace kelp::input::quill
