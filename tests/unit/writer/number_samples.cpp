#include "number_samples.hpp"

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <random>
#include <string>

// The distributions of the standard library differ from one library to another; these numbers are
// made from the bits of a generator that is the same everywhere.

namespace kelp::input::quill {

namespace {

using Limits = std::numeric_limits<double>;
using Random = std::mt19937_64;

constexpr std::size_t many = 100'000;

double from_bits(std::uint64_t bits) {
  double number = 0.0;
  std::memcpy(&number, &bits, sizeof number);
  return number;
}

/// A number from 0 up to but not including 1.
double fraction(Random& random) { return std::ldexp(static_cast<double>(random() >> 11), -53); }

double power_of_ten(int exponent) {
  const std::string text = "1e" + std::to_string(exponent);
  return std::strtod(text.c_str(), nullptr);
}

double with_random_sign(Random& random, double number) {
  return (random() & 1U) != 0 ? -number : number;
}

void add_both_signs(std::vector<double>& numbers, double number) {
  numbers.push_back(number);
  numbers.push_back(-number);
}

void add_with_neighbours(std::vector<double>& numbers, double number) {
  add_both_signs(numbers, std::nextafter(number, 0.0));
  add_both_signs(numbers, number);
  add_both_signs(numbers, std::nextafter(number, Limits::infinity()));
}

template <typename Make>
std::vector<double> sample(std::size_t size, std::uint64_t seed, Make make) {
  Random random(seed);
  std::vector<double> numbers;
  numbers.reserve(size);
  while (numbers.size() < size) numbers.push_back(make(random));
  return numbers;
}

}  // namespace

std::vector<double> special_numbers() {
  std::vector<double> numbers;
  for (const double number : {0.0, 1.0, 0.5, 0.5e-6, 1.5e-6, 2.5e-6, 1e-6, 1e300, Limits::max()})
    add_both_signs(numbers, number);
  for (const double border : {Limits::min(), 1e-300, 8796093022208.0, 9007199254740992.0,
                              9223372036854775808.0, 18446744073709551616.0})
    add_with_neighbours(numbers, border);
  add_with_neighbours(numbers, Limits::denorm_min());
  add_both_signs(numbers, std::nextafter(Limits::max(), 0.0));
  add_both_signs(numbers, Limits::infinity());
  add_both_signs(numbers, std::copysign(Limits::quiet_NaN(), 1.0));
  add_both_signs(numbers, from_bits(0x7FF0000000000001U));
  add_both_signs(numbers, from_bits(0x7FFFFFFFFFFFFFFFU));
  return numbers;
}

std::vector<double> powers_and_neighbours() {
  std::vector<double> numbers;
  for (int exponent = -1074; exponent <= 1023; ++exponent)
    add_with_neighbours(numbers, std::ldexp(1.0, exponent));
  for (int exponent = -323; exponent <= 308; ++exponent)
    add_with_neighbours(numbers, power_of_ten(exponent));
  return numbers;
}

std::vector<double> random_bit_patterns() {
  return sample(many, 1, [](Random& random) { return from_bits(random()); });
}

std::vector<double> uniform_numbers() {
  return sample(many, 2, [](Random& random) { return 2000.0 * fraction(random) - 1000.0; });
}

std::vector<double> short_decimals() {
  return sample(many, 3, [](Random& random) {
    constexpr std::uint64_t powers_of_ten[] = {10, 10'000, 10'000'000, 1'000'000'000'000};
    const auto digits = static_cast<double>(random() % powers_of_ten[random() % 4]);
    const double scale = power_of_ten(static_cast<int>(random() % 10));
    return with_random_sign(random, digits / scale);
  });
}

std::vector<double> every_small_exponent() {
  return sample(many, 4, [](Random& random) {
    const int exponent = static_cast<int>(random() % 151) - 80;
    return with_random_sign(random, std::ldexp(1.0 + fraction(random), exponent));
  });
}

std::vector<double> exact_ties() {
  // A million times k/128 is 7812.5 k: half-way between two integers for every odd k, and for no
  // other denominator in lowest terms. From 2^46 on doubles have no such fractions.
  return sample(many, 5, [](Random& random) {
    const std::uint64_t odd = (random() >> (11 + random() % 50)) | 1U;
    return with_random_sign(random, std::ldexp(static_cast<double>(odd), -7));
  });
}

std::vector<double> near_ties() {
  std::vector<double> numbers;
  Random random(6);
  while (numbers.size() < many) {
    const auto millionths = static_cast<double>(random() >> (14 + random() % 50));
    add_with_neighbours(numbers, (millionths + 0.5) / 1e6);
  }
  return numbers;
}

}  // namespace kelp::input::quill
