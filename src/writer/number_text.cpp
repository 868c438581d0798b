#include "writer/number_text.hpp"

#include <array>
#include <charconv>
#include <cmath>
#include <cstring>
#include <limits>
#include <optional>

#include "writer/floating_point_text.hpp"

namespace kelp::input::quill {

namespace {

constexpr int coordinate_decimals = 6;
constexpr std::uint64_t millionths_per_unit = 1'000'000;

#if defined(__SIZEOF_INT128__) && !defined(KELP_QUILL_INP_PORTABLE_NUMBERS)
__extension__ using Uint128 = unsigned __int128;

/// Returns the magnitude of `value` in millionths, rounded to the nearest integer with ties to
/// even, for magnitudes below 999,999, which still have at most six digits before the point after
/// rounding; nothing for others.
///
/// A double is m * 2^-s with m < 2^53, so m * 10^6 < 2^73 is exact in 128 bits, and of the sum with
/// half a millionth only the bits below 2^s are lost: all of them are 0 exactly for a tie. From
/// s = 75 on the result is less than half a millionth; the sum holds it up to s = 127. Below 2^20,
/// s is at least 33.
std::optional<std::uint64_t> to_millionths(double value) {
  constexpr double limit = 999'999.0;
  constexpr int mantissa_bits = std::numeric_limits<double>::digits - 1;
  constexpr std::uint64_t hidden_bit = std::uint64_t{1} << mantissa_bits;
  constexpr unsigned sum_bits = 128;
  if (!(std::fabs(value) < limit)) return std::nullopt;
  std::uint64_t bits = 0;
  std::memcpy(&bits, &value, sizeof bits);
  const auto exponent = static_cast<unsigned>(bits >> mantissa_bits) & 0x7FFU;
  const unsigned shift = 1075U - exponent;
  if (shift >= sum_bits) return 0;
  const Uint128 product = Uint128{(bits & (hidden_bit - 1)) | hidden_bit} * millionths_per_unit;
  const Uint128 sum = product + (Uint128{1} << (shift - 1));
  const auto rounded = static_cast<std::uint64_t>(sum >> shift);
  const bool is_tie = sum << (sum_bits - shift) == 0;
  return is_tie ? rounded & ~std::uint64_t{1} : rounded;
}
#else
std::optional<std::uint64_t> to_millionths(double /*value*/) { return std::nullopt; }
#endif

// Eight characters are made at once, in the eight bytes of an integer; the first one is the lowest
// byte, in whatever order the machine stores bytes.

constexpr std::uint64_t in_every_byte(std::uint64_t byte) { return byte * 0x0101010101010101U; }

/// Returns the eight digits of a number below 10^8 as bytes from 0 to 9.
///
/// Each step divides every part of the word by a power of ten and puts quotient and remainder in
/// its place: two halves of four digits, four pairs, eight digits. x * 10486 >> 20 is x / 100 for
/// every x < 10^4, x * 103 >> 10 is x / 10 for every x < 100, and no product reaches the next part.
constexpr std::uint64_t digits_of(std::uint64_t number) {
  const std::uint64_t halves = number / 10000 | number % 10000 << 32;
  const std::uint64_t hundreds = halves * 10486 >> 20 & 0x0000007F0000007FU;
  const std::uint64_t pairs = hundreds | (halves - hundreds * 100) << 16;
  const std::uint64_t tens = pairs * 103 >> 10 & 0x000F000F000F000FU;
  return tens | (pairs - tens * 10) << 8;
}

/// Returns digits as text, with blanks for leading zeros and a "-" or one more blank before the
/// first digit that remains. The last digit always remains. The first byte of `digits` is 0.
constexpr std::uint64_t right_justified(std::uint64_t digits, bool is_negative) {
  constexpr std::uint64_t last_digit = std::uint64_t{0x80} << 56;
  // Adding 0x7F sets the top bit of every digit but 0; of these flags the lowest one counts.
  const std::uint64_t flags = ((digits + in_every_byte(0x7F)) & in_every_byte(0x80)) | last_digit;
  const std::uint64_t first_digit = (flags & (~flags + 1)) >> 7;
  const std::uint64_t all_before = first_digit - 1;
  // Half of all coordinates are negative, in an order that a processor cannot predict: no branch
  // may depend on the sign.
  const std::uint64_t sign = std::uint64_t{is_negative} * ('-' ^ ' ');
  return (digits | in_every_byte('0')) ^ (all_before & in_every_byte('0' ^ ' ')) ^
         (first_digit >> 8) * sign;
}

/// Compilers turn this into one or two stores if the byte order allows it.
template <int count>
void store_characters(char* out, std::uint64_t characters) {
  for (int i = 0; i < count; ++i) out[i] = static_cast<char>(characters >> (8 * i) & 0xFFU);
}

void append_any_coordinate(std::string& out, double coordinate) {
  char text[longest_fixed(coordinate_decimals)];
  const char* const end = write_fixed(text, coordinate, coordinate_decimals);
  const auto length = static_cast<std::size_t>(end - text);
  if (length < coordinate_width) out.append(coordinate_width - length, ' ');
  out.append(text, length);
}

constexpr std::size_t pair_size = 2;

using Pairs = std::array<char, 100 * pair_size>;

/// "00", "01" and so on up to "99".
constexpr Pairs make_pairs() {
  Pairs pairs = {};
  for (std::size_t i = 0; i < pairs.size(); i += pair_size) {
    const std::size_t number = i / pair_size;
    pairs[i] = static_cast<char>('0' + number / 10);
    pairs[i + 1] = static_cast<char>('0' + number % 10);
  }
  return pairs;
}

char* write_pair(char* field, std::uint32_t number) {
  static constexpr Pairs pairs = make_pairs();
  std::memcpy(field, &pairs[number * pair_size], pair_size);
  return field + pair_size;
}

/// Writes one or two digits.
char* write_below_hundred(char* field, std::uint32_t number) {
  if (number >= 10) return write_pair(field, number);
  *field = static_cast<char>('0' + number);
  return field + 1;
}

}  // namespace

char* write_integer(char* field, std::int32_t number) {
  // A negative number becomes one above every limit here.
  const auto as_unsigned = static_cast<std::uint32_t>(number);
  if (as_unsigned < 100) return write_below_hundred(field, as_unsigned);
  if (as_unsigned < 10'000)
    return write_pair(write_below_hundred(field, as_unsigned / 100), as_unsigned % 100);
  return std::to_chars(field, field + longest_integer, number).ptr;
}

bool write_coordinate(char* field, double coordinate) {
  const std::optional<std::uint64_t> millionths = to_millionths(coordinate);
  if (!millionths) return false;
  const std::uint64_t whole = digits_of(*millionths / millionths_per_unit);
  const std::uint64_t decimals = digits_of(*millionths % millionths_per_unit);
  store_characters<8>(
      field, right_justified(whole, std::signbit(coordinate)) >> 8 | std::uint64_t{'.'} << 56);
  store_characters<6>(field + 8, (decimals | in_every_byte('0')) >> 16);
  return true;
}

void append_coordinate(std::string& out, double coordinate) {
  char field[coordinate_width];
  if (write_coordinate(field, coordinate)) {
    out.append(field, sizeof field);
  } else {
    append_any_coordinate(out, coordinate);
  }
}

char* write_scan_value(char* field, double value) {
  return write_general(field, value, scan_value_digits);
}

}  // namespace kelp::input::quill
