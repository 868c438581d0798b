#ifndef KELP_CORE_TEXT_EIGHT_DIGITS_HPP
#define KELP_CORE_TEXT_EIGHT_DIGITS_HPP

#include <cstddef>
#include <cstdint>

#include "eight_bytes.hpp"

namespace kelp::core::text {

// The digits of a number in the bytes of a word, read at once. Each byte holds the value of one
// digit, 0 to 9; the first byte is the first and most significant digit.

/// The values of eight characters. One that is not a digit gets a value above 9.
constexpr std::uint64_t digit_values(std::uint64_t characters) {
  return characters ^ in_every_byte('0');
}

/// The values of the first `count` characters, at most seven, after leading zeros.
constexpr std::uint64_t first_digit_values(std::uint64_t characters, std::size_t count) {
  return (digit_values(characters) << 8) << (8 * (word_bytes - 1 - count));
}

/// The values of the last `count` characters, one to eight, after leading zeros.
constexpr std::uint64_t last_digit_values(std::uint64_t characters, std::size_t count) {
  return digit_values(characters) & (~std::uint64_t{0} << (8 * (word_bytes - count)));
}

/// Whether each of the values is at most 9.
constexpr bool are_digits(std::uint64_t values) {
  // The sum sets the top bit of the bytes from 10 to 0x7F; larger ones have it already. A byte that
  // carries into the next one is itself above 0x7F, so the carry cannot hide a wrong byte.
  return (((values + in_every_byte(0x80 - 10)) | values) & top_bits) == 0;
}

/// The number that the values spell, if they are digits.
constexpr std::int64_t number_of(std::uint64_t values) {
  // First every even byte is combined with the odd one after it: four numbers below 100, a, b, c
  // and d. Of (a + c * 2^32) * (100 + 10^6 * 2^32), bits 32 to 63 are 10^6 * a + 100 * c, and in
  // the same way those of (b + d * 2^32) * (1 + 10^4 * 2^32) are 10^4 * b + d.
  const std::uint64_t pairs = values * 10 + (values >> 8);
  const std::uint64_t a_and_c = pairs & 0x000000FF000000FF;
  const std::uint64_t b_and_d = (pairs >> 16) & 0x000000FF000000FF;
  constexpr std::uint64_t million = 1'000'000;
  constexpr std::uint64_t ten_thousand = 10'000;
  const std::uint64_t sum =
      a_and_c * ((million << 32) + 100) + b_and_d * ((ten_thousand << 32) + 1);
  return static_cast<std::int64_t>(sum >> 32);
}

}  // namespace kelp::core::text

#endif  // KELP_CORE_TEXT_EIGHT_DIGITS_HPP
