#ifndef KELP_CORE_TEXT_DIGITS_HPP
#define KELP_CORE_TEXT_DIGITS_HPP

#include <cstdint>

#include "eight_bytes.hpp"

namespace kelp::core::text {

/// Eight characters as values, by load_word(): digits become 0 to 9, everything else more than 9.
constexpr std::uint64_t digit_values(std::uint64_t characters) {
  return characters ^ in_every_byte('0');
}

/// Whether every byte of the word is at most 9.
constexpr bool are_digit_values(std::uint64_t word) {
  // A byte above 0x7F has its top bit set from the start. The others sum up to 0xF5 at most, so
  // the lowest byte above 9, if there is one, gets its top bit by its own sum.
  return (((word + in_every_byte(0x80 - 10)) | word) & top_bits) == 0;
}

/// The number spelled by the values of eight digits, the first byte being the first digit.
constexpr std::int64_t number_of(std::uint64_t digits) {
  // Digits to four numbers of two digits, in bytes 0, 2, 4 and 6; these to the halves of the
  // result, each made in the upper 32 bits of a product: bytes 0 and 4, and bytes 2 and 6.
  const std::uint64_t pairs = digits * 10 + (digits >> 8);
  constexpr std::uint64_t every_other_pair = 0x000000FF000000FF;
  constexpr std::uint64_t first_and_third = (std::uint64_t{1000000} << 32) + 100;
  constexpr std::uint64_t second_and_fourth = (std::uint64_t{10000} << 32) + 1;
  const std::uint64_t sum = (pairs & every_other_pair) * first_and_third +
                            ((pairs >> 16) & every_other_pair) * second_and_fourth;
  return static_cast<std::int64_t>(sum >> 32);
}

}  // namespace kelp::core::text

#endif  // KELP_CORE_TEXT_DIGITS_HPP
