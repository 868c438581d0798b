#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <limits>

#include "exactness/big_decimal.hpp"
#include "exactness/samples.hpp"

namespace kelp::input::quill::exactness::tokens {

namespace {

std::string signed_randomly(Random& random, std::string token) {
  constexpr std::array<const char*, 4> signs = {"", "", "-", "+"};
  return signs[random() % signs.size()] + std::move(token);
}

std::string with_point(Random& random, std::string digits) {
  digits.insert(random() % (digits.size() + 1), ".");
  return digits;
}

std::string exponent_text(Random& random, std::int64_t exponent) {
  constexpr std::array<const char*, 4> letters = {"e", "E", "d", "D"};
  const char* const plus = exponent >= 0 && random() % 2 == 0 ? "+" : "";
  return letters[random() % letters.size()] + (plus + std::to_string(exponent));
}

std::string random_digits(Random& random, std::size_t count) {
  std::string digits;
  while (digits.size() < count) digits += static_cast<char>('0' + random() % 10);
  return digits;
}

std::int64_t number_between(Random& random, std::int64_t least, std::int64_t most) {
  return least + static_cast<std::int64_t>(random() % static_cast<std::uint64_t>(most - least + 1));
}

}  // namespace

std::string random_bits(Random& random) {
  const double number = values::random_bits(random);
  const auto digits = static_cast<int>(random() % 17);
  char text[64];
  switch (random() % 3) {
    case 0:
      static_cast<void>(std::snprintf(text, sizeof text, "%.*g", digits, number));
      break;
    case 1:
      static_cast<void>(std::snprintf(text, sizeof text, "%.*e", digits, number));
      break;
    default: {
      int ignored = 0;  // without the exponent, few enough digits remain
      static_cast<void>(std::snprintf(text, sizeof text, "%.*f", digits,
                                      std::ldexp(std::frexp(number, &ignored), 10)));
      break;
    }
  }
  return text;
}

std::string short_decimal(Random& random) {
  std::string token = random_digits(random, random() % 19 + 1);
  if (random() % 8 != 0) token = with_point(random, std::move(token));
  if (random() % 8 == 0) token += exponent_text(random, number_between(random, -30, 30));
  return signed_randomly(random, std::move(token));
}

std::string halfway(Random& random) {
  // Most doubles in real inputs are near 1, and so are half of these; the others can be any.
  const int exponent = static_cast<int>(random() % 2 == 0 ? number_between(random, -80, 40)
                                                          : number_between(random, -1075, 970));
  // 2m + 1 in units of half the last bit: m with all 53 bits, or fewer for a subnormal number.
  const std::uint64_t leading = exponent == -1075 ? 0 : std::uint64_t{1} << 52;
  const std::uint64_t mantissa = leading | random() >> 12;
  BigDecimal number(2 * mantissa + 1, exponent);
  number.move_by_tenth(static_cast<int>(number_between(random, -1, 1)));
  return signed_randomly(
      random, with_point(random, number.digits()) + exponent_text(random, number.exponent()));
}

std::string power(Random& random) {
  const std::size_t zeros = random() % 25;
  std::string digits = std::string(1, '1') + std::string(zeros, '0');
  const std::uint64_t kind = random() % 3;
  if (kind == 1) digits.back() = '1';
  if (kind == 2) digits.assign(zeros + 1, '9');
  if (random() % 2 == 0) digits = with_point(random, std::move(digits));
  if (random() % 4 != 0) digits += exponent_text(random, number_between(random, -350, 310));
  return signed_randomly(random, std::move(digits));
}

std::string border(Random& random) {
  constexpr std::array<std::uint64_t, 9> borders = {9'999'999,
                                                    99'999'999,
                                                    999'999'999'999'999,
                                                    9'999'999'999'999'999,
                                                    std::uint64_t{1} << 53,
                                                    std::uint64_t{1} << 54,
                                                    std::uint64_t{1} << 63,
                                                    std::numeric_limits<std::uint64_t>::max() - 3,
                                                    9'999'999'999'999'999'999U};
  const std::uint64_t number = borders[random() % borders.size()] + random() % 7 - 3;
  std::string token = std::string(random() % 4, '0') + std::to_string(number);
  token += std::string(random() % 3, '0');
  if (random() % 4 != 0) token = with_point(random, std::move(token));
  if (random() % 2 == 0) token += exponent_text(random, number_between(random, -45, 25));
  return signed_randomly(random, std::move(token));
}

}  // namespace kelp::input::quill::exactness::tokens
