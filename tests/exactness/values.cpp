#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <limits>

#include "exactness/samples.hpp"

namespace kelp::input::quill::exactness::values {

namespace {

double with_random_sign(Random& random, double number) {
  return (random() & 1U) != 0 ? -number : number;
}

/// Moves a number by up to `most` steps in either direction.
double stepped(Random& random, double number, unsigned most) {
  const double target = (random() & 1U) != 0 ? 0.0 : std::numeric_limits<double>::infinity();
  for (std::uint64_t steps = random() % (most + 1); steps != 0; --steps)
    number = std::nextafter(number, target);
  return number;
}

double power_of_ten(int exponent) {
  return std::strtod(("1e" + std::to_string(exponent)).c_str(), nullptr);
}

/// Up to 10^digits, with every number of digits as likely as every other.
double integer_of_digits(Random& random, unsigned digits) {
  const double limit = power_of_ten(static_cast<int>(random() % digits) + 1);
  return static_cast<double>(random() % static_cast<std::uint64_t>(limit));
}

int exponent_between(Random& random, int least, int most) {
  const auto choices = static_cast<std::uint64_t>(most - least) + 1;
  return least + static_cast<int>(random() % choices);
}

}  // namespace

double random_bits(Random& random) {
  const std::uint64_t bits = random();
  double number = 0.0;
  std::memcpy(&number, &bits, sizeof number);
  return number;
}

double short_decimal(Random& random) {
  const double digits = integer_of_digits(random, 12);
  return with_random_sign(random, digits / power_of_ten(exponent_between(random, 0, 9)));
}

double halfway(Random& random) {
  if (random() % 2 == 0) {
    // A million times k/128 is 7812.5 k: a tie of six decimals for every odd k. Other powers of two
    // give ties of fewer digits.
    const std::uint64_t odd = random() >> (11 + random() % 50) | 1U;
    return with_random_sign(random,
                            std::ldexp(static_cast<double>(odd), -exponent_between(random, 1, 20)));
  }
  const double digits = integer_of_digits(random, 15) + 0.5;
  const double number = digits / power_of_ten(exponent_between(random, 0, 12));
  return with_random_sign(random, stepped(random, number, 1));
}

double power(Random& random) {
  const double number = random() % 2 == 0 ? power_of_ten(exponent_between(random, -323, 308))
                                          : std::ldexp(1.0, exponent_between(random, -1074, 1023));
  return with_random_sign(random, stepped(random, number, 2));
}

double border(Random& random) {
  constexpr std::array<double, 20> borders = {
      0.0,           0.5e-6,         1e-6,      1.5e-6,         0x1p-22,  0x1p-23, 0.0001,
      0.00009999995, 0.999999,       0.9999995, 9.9999995,      999999.5, 1e6,     999999.999,
      999999.99999,  999999.9999995, 999999.0,  999998.9999995, 0x1p43,   1e13};
  const double number = borders[random() % borders.size()];
  return with_random_sign(random, stepped(random, number, 3));
}

}  // namespace kelp::input::quill::exactness::values
