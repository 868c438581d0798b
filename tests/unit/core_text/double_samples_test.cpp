#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <limits>
#include <random>
#include <string>
#include <vector>

#include "parsed_double.hpp"
#include "properties/obvious_text.hpp"
#include "text_samples.hpp"

// Every number here must be read as the C library reads it, bit by bit.

namespace kelp::core::text {
namespace {

namespace obvious = kelp::input::quill::obvious;

using Random = std::mt19937_64;
using Limits = std::numeric_limits<double>;

std::size_t below(Random& random, std::size_t limit) { return random() % limit; }

std::string digits(Random& random, std::size_t count) {
  std::string text;
  while (text.size() < count) text += static_cast<char>('0' + below(random, 10));
  return text;
}

std::string in_scientific_notation(long double value, int decimals) {
  std::array<char, 2'000> text{};
  std::snprintf(text.data(), text.size(), "%.*Le", decimals, value);
  return text.data();
}

std::string in_fixed_notation(long double value, int decimals) {
  std::array<char, 2'000> text{};
  std::snprintf(text.data(), text.size(), "%.*Lf", decimals, value);
  return text.data();
}

std::string in_17_digits(double value) {
  std::array<char, 32> text{};
  std::snprintf(text.data(), text.size(), "%.17g", value);
  return text.data();
}

/// Does nothing in a test that has already failed: one number is enough.
void expect_as_strtod(const std::string& token) {
  if (testing::Test::HasFailure()) return;
  EXPECT_EQ(parsed(token), ParsedDouble(obvious::number(token))) << testing::PrintToString(token);
}

/// The number as it is, with either sign, and with the exponent letters of Fortran.
void expect_all_forms_as_strtod(const std::string& token) {
  std::string fortran = token;
  std::replace(fortran.begin(), fortran.end(), 'e', 'D');
  if (fortran == token) fortran += "d0";
  for (const std::string& form : {token, fortran}) {
    expect_as_strtod(form);
    expect_as_strtod('-' + form);
    expect_as_strtod('+' + form);
  }
}

double double_of(std::uint64_t bits) {
  double value = 0.0;
  std::memcpy(&value, &bits, sizeof value);
  return value;
}

TEST(ParseDoubleAsStrtod, OfRandomBitsInShortestExactDigits) {
  Random random(20260103);
  for (int i = 0; i < 60'000; ++i) {
    expect_as_strtod(in_17_digits(double_of(random())));
  }
}

TEST(ParseDoubleAsStrtod, OfRandomBitsInMoreAndFewerDigits) {
  Random random(20260104);
  for (int i = 0; i < 20'000; ++i) {
    const int precision = static_cast<int>(below(random, 40));
    const auto value = static_cast<long double>(double_of(random()));
    expect_as_strtod(in_scientific_notation(value, precision));
  }
}

TEST(ParseDoubleAsStrtod, OfCoordinatesInFixedNotation) {
  Random random(20260105);
  for (int i = 0; i < 60'000; ++i) {
    const auto bits = static_cast<std::int64_t>(random());
    const double magnitude = std::pow(10.0, static_cast<double>(below(random, 10)) - 3.0);
    const auto value = static_cast<long double>(magnitude * static_cast<double>(bits) / 9.2e18);
    expect_as_strtod(in_fixed_notation(value, static_cast<int>(below(random, 17))));
  }
}

TEST(ParseDoubleAsStrtod, OfRandomDigitsAroundAPoint) {
  Random random(20260106);
  for (int i = 0; i < 60'000; ++i) {
    const std::size_t whole = below(random, 12);
    expect_as_strtod(digits(random, whole) + '.' + digits(random, below(random, 20)));
  }
}

TEST(ParseDoubleAsStrtod, OfRandomDigitsWithAnExponent) {
  Random random(20260107);
  for (int i = 0; i < 20'000; ++i) {
    const std::string exponent = std::to_string(static_cast<int>(below(random, 700)) - 350);
    expect_all_forms_as_strtod(digits(random, below(random, 12)) + '.' +
                               digits(random, below(random, 12)) + 'e' + exponent);
  }
}

TEST(ParseDoubleAsStrtod, OfNumbersLongerThanAnyDoubleNeeds) {
  Random random(20260108);
  for (int i = 0; i < 2'000; ++i) {
    const std::size_t zeros = below(random, 2) * below(random, 1'000);
    const std::string text = std::string(zeros, '0') + digits(random, below(random, 1'500)) + '.' +
                             std::string(zeros, '0') + digits(random, 1 + below(random, 1'500));
    const std::string exponent = std::to_string(static_cast<int>(below(random, 4'000)) - 2'000);
    expect_all_forms_as_strtod(text + 'e' + exponent);
  }
}

TEST(ParseDoubleAsStrtod, OfPowersOfTenAndTheirNeighbours) {
  for (int exponent = -400; exponent <= 400; ++exponent) {
    const std::string power = "1e" + std::to_string(exponent);
    expect_all_forms_as_strtod(power);
    const double value = obvious::number(power).value_or(Limits::max());
    expect_all_forms_as_strtod(in_17_digits(std::nextafter(value, 0.0)));
    expect_all_forms_as_strtod(in_17_digits(std::nextafter(value, Limits::infinity())));
  }
}

TEST(ParseDoubleAsStrtod, OfPowersOfTwoAndTheirNeighbours) {
  for (int exponent = -1074; exponent <= 1023; ++exponent) {
    const double value = std::ldexp(1.0, exponent);
    for (const double number :
         {value, std::nextafter(value, 0.0), std::nextafter(value, Limits::infinity())}) {
      expect_as_strtod(in_17_digits(number));
      expect_as_strtod(in_fixed_notation(static_cast<long double>(number), 1'100));
    }
  }
}

TEST(ParseDoubleAsStrtod, OfIntegersAroundThe53Bits) {
  constexpr std::int64_t border = std::int64_t{1} << 53;
  for (std::int64_t integer = border - 40; integer <= border + 40; ++integer) {
    for (int exponent = -30; exponent <= 30; ++exponent) {
      expect_all_forms_as_strtod(std::to_string(integer) + 'e' + std::to_string(exponent));
    }
    const std::string text = std::to_string(integer);
    for (std::size_t point = 0; point <= text.size(); ++point) {
      expect_as_strtod(text.substr(0, point) + '.' + text.substr(point));
    }
  }
}

/// The numbers exactly halfway between two neighbouring doubles have the most digits of all numbers
/// whose digits decide how to round. A long double can hold them exactly.
class ParseDoubleHalfway : public testing::Test {
 protected:
  static_assert(std::numeric_limits<long double>::digits > Limits::digits,
                "halfway numbers need one more bit than a double has");

  static void expect_around_halfway_above(double value) {
    const auto next = static_cast<long double>(std::nextafter(value, Limits::infinity()));
    const long double halfway = (static_cast<long double>(value) + next) / 2;
    const std::string text = in_scientific_notation(halfway, 800);
    const std::size_t exponent = text.find('e');
    const std::size_t last = text.find_last_not_of('0', exponent - 1);
    const std::string exact = text.substr(0, last + 1);
    const std::string rest = text.substr(exponent);
    // The exact number, a little more, more digits than matter, and a little less.
    expect_all_forms_as_strtod(exact + rest);
    expect_all_forms_as_strtod(exact + '1' + rest);
    expect_all_forms_as_strtod(exact + std::string(900, '0') + rest);
    expect_all_forms_as_strtod(exact + std::string(900, '0') + '1' + rest);
    std::string less = exact;
    --less.back();
    expect_all_forms_as_strtod(less + std::string(900, '9') + rest);
  }
};

TEST_F(ParseDoubleHalfway, GoesToTheEvenNeighbourAmongRandomDoubles) {
  Random random(20260109);
  for (int i = 0; i < 1'500; ++i) {
    const double value = double_of(random() & (~std::uint64_t{0} >> 1));
    if (value < Limits::max()) expect_around_halfway_above(value);
  }
}

TEST_F(ParseDoubleHalfway, GoesToTheEvenNeighbourAtTheEndsOfTheRange) {
  for (const double value : {0.0, Limits::denorm_min(), Limits::min(), Limits::epsilon(), 1.0}) {
    expect_around_halfway_above(value);
    expect_around_halfway_above(std::nextafter(value, Limits::infinity()));
    if (value > 0.0) expect_around_halfway_above(std::nextafter(value, 0.0));
  }
  expect_around_halfway_above(std::nextafter(Limits::max(), 0.0));
}

TEST_F(ParseDoubleHalfway, IsTooLargeAboveTheLargestDoubleAndRightBelowHalfwayIsNot) {
  // The next double would be 2^1024, and the distance between the two largest is 2^971.
  const long double half_step = std::ldexp(1.0L, 970);
  const auto largest = static_cast<long double>(Limits::max());
  const std::string halfway = in_fixed_notation(largest + half_step, 0);
  EXPECT_EQ(parsed(halfway), no_number);
  EXPECT_EQ(parsed(halfway + "d0"), no_number);
  std::string less = halfway;
  --less.back();
  EXPECT_EQ(parsed(less), same_bits(Limits::max()));
  EXPECT_EQ(parsed(less + "d0"), same_bits(Limits::max()));
  EXPECT_EQ(parsed(less + "." + std::string(900, '9') + "d0"), same_bits(Limits::max()));
}

TEST(ParseDoubleOfEveryShortToken, FollowsTheGrammar) {
  for (const std::string& token : every_short_text("05.+-ed", 6)) expect_as_strtod(token);
}

TEST(ParseDoubleOfEveryShortToken, FollowsTheSpellingOfNames) {
  for (const std::string& token : every_short_text("iNfA+-1 ", 5)) expect_as_strtod(token);
}

TEST(ParseDoubleOfFixedNotation, TakesEveryLengthAndPlaceOfThePoint) {
  for (std::size_t size = 1; size <= 24; ++size) {
    for (std::size_t point = 0; point < size; ++point) {
      for (const std::string_view pattern : {"0000000000", "9999999999", "1234567890"}) {
        std::string token;
        while (token.size() < size) token += pattern[token.size() % pattern.size()];
        token[point] = '.';
        expect_as_strtod(token);
        expect_as_strtod('-' + token);
        expect_as_strtod('+' + token);
      }
    }
  }
}

TEST(ParseDoubleOfFixedNotation, RefusesEveryOtherByteInEveryPlace) {
  for (std::size_t size = 7; size <= 18; ++size) {
    for (std::size_t point = 0; point < size; ++point) {
      for (std::size_t place = 0; place < size; ++place) {
        for (const char c : every_byte()) {
          std::string token(size, '4');
          token[point] = '.';
          token[place] = c;
          expect_as_strtod(token);
        }
      }
    }
  }
}

}  // namespace
}  // namespace kelp::core::text
