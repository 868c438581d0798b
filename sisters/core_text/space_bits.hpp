#ifndef KELP_CORE_TEXT_SPACE_BITS_HPP
#define KELP_CORE_TEXT_SPACE_BITS_HPP

#include <cstddef>
#include <cstdint>
#include <string_view>

#include "ascii.hpp"
#include "eight_bytes.hpp"

namespace kelp::core::text {

/// The top bit of each byte of `word` that is white space; every other bit of the result is 0.
constexpr std::uint64_t space_flags(std::uint64_t word) {
  // A byte without its top bit is at most 0x7F. Adding 0x80 - n to it carries into no other byte
  // and sets the top bit exactly if the byte was n or more. Bytes that had a top bit are not white
  // space; `~word` removes them at the end.
  const std::uint64_t low = word & ~top_bits;
  const std::uint64_t from_tab = low + in_every_byte(0x80 - '\t');
  const std::uint64_t beyond_return = low + in_every_byte(0x80 - ('\r' + 1));
  const std::uint64_t not_blank = (low ^ in_every_byte(' ')) + in_every_byte(0x80 - 1);
  return ((from_tab & ~beyond_return) | ~not_blank) & ~word & top_bits;
}

/// The flags of eight bytes as the eight lowest bits of a number, in the same order.
constexpr std::uint64_t gather_flags(std::uint64_t flags) {
  // After a shift right by 7, flag i is bit 8i. The product is the sum of its shifts by 7, 14, ...,
  // 56 bits; the shift by 56 - 7i moves it to bit 56 + i. All the sums 8i + 7j are different, so
  // nothing carries and no other shift reaches that bit.
  return ((flags >> 7) * std::uint64_t{0x0102040810204080}) >> 56;
}

inline constexpr std::size_t space_bits_limit = 64;

/// Bit i of the result is set where byte i of `text` is white space, and where there is no byte i.
/// `text` is shorter than space_bits_limit.
inline std::uint64_t space_bits(std::string_view text) {
  const auto bits_at = [text](std::size_t i) {
    return gather_flags(space_flags(load_word(text.data() + i))) << i;
  };
  std::uint64_t bits = ~std::uint64_t{0} << text.size();
  if (text.size() < word_bytes) {
    for (std::size_t i = 0; i < text.size(); ++i) bits |= std::uint64_t{is_space(text[i])} << i;
    return bits;
  }
  // The last eight bytes come first; then whole words, as long as they begin before those.
  const std::size_t last_word = text.size() - word_bytes;
  bits |= bits_at(last_word);
  for (std::size_t i = 0; i < last_word; i += word_bytes) bits |= bits_at(i);
  return bits;
}

}  // namespace kelp::core::text

#endif  // KELP_CORE_TEXT_SPACE_BITS_HPP
