#include "writer/number_text.hpp"

#include <charconv>
#include <cmath>
#include <cstring>
#include <limits>
#include <optional>

namespace kelp::input::quill {

namespace {

constexpr int coordinate_decimals = 6;
constexpr std::uint64_t millionths_per_unit = 1'000'000;

// A sign, every digit before the point of the largest double, the point and the decimals.
constexpr std::size_t longest_coordinate =
    1 + std::numeric_limits<double>::max_exponent10 + 1 + 1 + coordinate_decimals;

// A sign, six digits, the point and an exponent such as "e-308".
constexpr std::size_t longest_scan_value = 1 + 6 + 1 + 5;

constexpr std::size_t longest_integer = std::numeric_limits<std::int32_t>::digits10 + 2;

#if defined(__SIZEOF_INT128__)
__extension__ using Uint128 = unsigned __int128;

/// Returns the magnitude of `value` in millionths, rounded to the nearest integer with ties to
/// even, for magnitudes below 2^43; nothing for others.
///
/// A double is m * 2^-s with m < 2^53, so m * 10^6 < 2^73 is exact in 128 bits, and shifting it
/// right by s loses only bits that are looked at for rounding. From s = 75 on, what remains is
/// less than half a millionth. Below 2^43, s is at least 10 and the result less than 2^63.
std::optional<std::uint64_t> to_millionths(double value) {
  constexpr double limit = 8'796'093'022'208.0;
  constexpr int mantissa_bits = std::numeric_limits<double>::digits - 1;
  constexpr std::uint64_t hidden_bit = std::uint64_t{1} << mantissa_bits;
  if (!(std::fabs(value) < limit))
    return std::nullopt;
  std::uint64_t bits = 0;
  std::memcpy(&bits, &value, sizeof bits);
  const auto exponent = static_cast<unsigned>(bits >> mantissa_bits) & 0x7FFU;
  const unsigned shift = 1075U - exponent;
  if (shift >= 75U)
    return 0;
  const Uint128 product = Uint128{(bits & (hidden_bit - 1)) | hidden_bit} * millionths_per_unit;
  const auto floor = static_cast<std::uint64_t>(product >> shift);
  const Uint128 rest = product & ((Uint128{1} << shift) - 1);
  const Uint128 half = Uint128{1} << (shift - 1);
  const bool round_up = rest > half || (rest == half && (floor & 1U) != 0);
  return floor + (round_up ? 1U : 0U);
}
#else
std::optional<std::uint64_t> to_millionths(double) { return std::nullopt; }
#endif

/// Writes the digits of `number` so that they end before `end`, at least `least` of them; returns
/// where they begin.
char* write_digits_before(char* end, std::uint64_t number, int least) {
  for (; number != 0 || least > 0; number /= 10, --least) {
    *--end = static_cast<char>('0' + number % 10);
  }
  return end;
}

void append_millionths(std::string& out, std::uint64_t millionths, bool is_negative) {
  char field[24];  // a sign, 13 digits, the point and 6 decimals are 21
  char* const end = field + sizeof field;
  char* first = write_digits_before(end, millionths % millionths_per_unit, coordinate_decimals);
  *--first = '.';
  first = write_digits_before(first, millionths / millionths_per_unit, 1);
  if (is_negative)
    *--first = '-';
  while (static_cast<std::size_t>(end - first) < coordinate_width)
    *--first = ' ';
  out.append(first, end);
}

void append_any_coordinate(std::string& out, double coordinate) {
  char text[longest_coordinate];
  const char* const end = std::to_chars(text, text + sizeof text, coordinate,
                                        std::chars_format::fixed, coordinate_decimals)
                              .ptr;
  const auto length = static_cast<std::size_t>(end - text);
  if (length < coordinate_width)
    out.append(coordinate_width - length, ' ');
  out.append(text, length);
}

}  // namespace

void append_integer(std::string& out, std::int32_t number) {
  char text[longest_integer];
  out.append(text, std::to_chars(text, text + sizeof text, number).ptr);
}

void append_coordinate(std::string& out, double coordinate) {
  const std::optional<std::uint64_t> millionths = to_millionths(coordinate);
  if (millionths) {
    append_millionths(out, *millionths, std::signbit(coordinate));
  } else {
    append_any_coordinate(out, coordinate);
  }
}

void append_scan_value(std::string& out, double value) {
  char text[longest_scan_value];
  const char* const end =
      std::to_chars(text, text + sizeof text, value, std::chars_format::general, 6).ptr;
  out.append(text, static_cast<std::size_t>(end - text));
}

}  // namespace kelp::input::quill
