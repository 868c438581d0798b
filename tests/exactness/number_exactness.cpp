// Compares the library's ways to read and write numbers with those of the C library, which rounds
// correctly but is slow, on many numbers of five kinds:
//
//   number_exactness reading 1000000         try_parse_double and strtod
//   number_exactness coordinates 1000000     append_coordinate and printf("%14.6f")
//   number_exactness scan_values 1000000     write_scan_value and printf("%g")
//
// The count is that of numbers of each kind. A third argument is the seed, 1 by default.

#include <array>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <iostream>
#include <optional>
#include <string>
#include <string_view>

#include "exactness/samples.hpp"
#include "kelp/core/text.hpp"
#include "writer/number_text.hpp"

using namespace kelp::input::quill;
using namespace kelp::input::quill::exactness;

namespace {

template <typename Number>
struct Kind {
  const char* name;
  Number (*make)(Random&);
};

constexpr std::array<Kind<double>, 5> value_kinds = {{
    {"random bits", values::random_bits},
    {"short decimals", values::short_decimal},
    {"half-way cases", values::halfway},
    {"powers", values::power},
    {"borders", values::border},
}};

constexpr std::array<Kind<std::string>, 5> token_kinds = {{
    {"random bits", tokens::random_bits},
    {"short decimals", tokens::short_decimal},
    {"half-way cases", tokens::halfway},
    {"powers", tokens::power},
    {"borders", tokens::border},
}};

std::uint64_t bits_of(double number) {
  std::uint64_t bits = 0;
  std::memcpy(&bits, &number, sizeof bits);
  return bits;
}

/// What strtod reads from a number whose exponent may have Fortran's letter; nothing if the number
/// is too large for a double.
std::optional<double> read_by_c_library(std::string token) {
  const std::size_t letter = token.find_first_of("dD");
  if (letter != std::string::npos) token[letter] = 'e';
  const double value = std::strtod(token.c_str(), nullptr);
  const bool is_spelled_so = token.find_first_of("nN") != std::string::npos;
  if (std::isinf(value) && !is_spelled_so) return std::nullopt;
  return value;
}

/// NaNs are compared only by their sign: their other bits are not specified.
bool are_same(double left, double right) {
  if (std::isnan(left) && std::isnan(right)) return std::signbit(left) == std::signbit(right);
  return bits_of(left) == bits_of(right);
}

bool is_read_exactly(const std::string& token) {
  constexpr double untouched = -12345.0;
  const std::optional<double> expected = read_by_c_library(token);
  double value = untouched;
  const bool is_read = kelp::core::text::try_parse_double(token, value);
  if (is_read == expected.has_value() && are_same(value, expected.value_or(untouched))) return true;
  std::cout << token << " is read as " << (is_read ? std::to_string(value) : "nothing") << '\n';
  return false;
}

bool is_written_exactly(double number, std::string_view expected, const std::string& text) {
  if (text == expected) return true;
  std::cout << std::hexfloat << number << " is written \"" << text << "\", not \"" << expected
            << "\"\n";
  return false;
}

bool is_coordinate_exact(const double& number) {
  char expected[400];
  static_cast<void>(std::snprintf(expected, sizeof expected, "%14.6f", number));
  std::string text;
  append_coordinate(text, number);
  return is_written_exactly(number, expected, text);
}

bool is_scan_value_exact(const double& number) {
  char expected[32];
  static_cast<void>(std::snprintf(expected, sizeof expected, "%g", number));
  char text[longest_scan_value];
  return is_written_exactly(number, expected, std::string(text, write_scan_value(text, number)));
}

struct Plan {
  std::uint64_t count;
  std::uint64_t seed;
};

template <typename Number, std::size_t count>
bool are_exact(const std::array<Kind<Number>, count>& kinds, bool (*is_exact)(const Number&),
               const Plan& plan) {
  constexpr int most_shown = 20;
  int failures = 0;
  for (const Kind<Number>& kind : kinds) {
    Random random(plan.seed);
    for (std::uint64_t i = 0; i < plan.count && failures < most_shown; ++i)
      failures += is_exact(kind.make(random)) ? 0 : 1;
    std::cout << plan.count << ' ' << kind.name << (failures == 0 ? ": exact" : ": NOT exact")
              << std::endl;
  }
  return failures == 0;
}

std::optional<bool> check(std::string_view what, const Plan& plan) {
  if (what == "reading") return are_exact(token_kinds, is_read_exactly, plan);
  if (what == "coordinates") return are_exact(value_kinds, is_coordinate_exact, plan);
  if (what == "scan_values") return are_exact(value_kinds, is_scan_value_exact, plan);
  return std::nullopt;
}

}  // namespace

int main(int argc, char** argv) {
  std::optional<bool> result;
  if (argc == 3 || argc == 4) {
    const std::uint64_t seed = argc == 4 ? std::strtoull(argv[3], nullptr, 10) : 1;
    const std::uint64_t count = std::strtoull(argv[2], nullptr, 10);
    if (count > 0) result = check(argv[1], {count, seed});
  }
  if (!result)
    std::cerr << "usage: number_exactness reading|coordinates|scan_values COUNT [SEED]\n";
  return result.has_value() ? (*result ? 0 : 1) : 2;
}
