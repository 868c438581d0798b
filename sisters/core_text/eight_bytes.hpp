#ifndef KELP_CORE_TEXT_EIGHT_BYTES_HPP
#define KELP_CORE_TEXT_EIGHT_BYTES_HPP

#include <cstddef>
#include <cstdint>
#include <cstring>

namespace kelp::core::text {

// Eight bytes of text as one number, so that one operation of the processor works on all of them.
// The first byte is the least significant one on every machine, whatever its byte order.

inline constexpr std::size_t word_bytes = 8;

inline std::uint64_t load_word(const char* bytes) {
#if defined(__BYTE_ORDER__) && __BYTE_ORDER__ == __ORDER_LITTLE_ENDIAN__
  std::uint64_t word = 0;
  std::memcpy(&word, bytes, word_bytes);
#else
  std::uint64_t word = 0;
  for (std::size_t i = word_bytes; i-- > 0;) {
    word = (word << 8) | static_cast<unsigned char>(bytes[i]);
  }
#endif
  return word;
}

constexpr std::uint64_t in_every_byte(unsigned value) {
  return std::uint64_t{0x0101010101010101} * value;
}

inline constexpr std::uint64_t top_bits = in_every_byte(0x80);

/// The top bits of bytes that are 0. The lowest one is exact; the bits above it may be wrong.
constexpr std::uint64_t zero_flags(std::uint64_t word) {
  return (word - in_every_byte(1)) & ~word & top_bits;
}

/// The place of the lowest bit that is set. `bits` is not 0.
inline std::size_t lowest_bit(std::uint64_t bits) {
#if defined(__GNUC__)
  return static_cast<std::size_t>(__builtin_ctzll(bits));
#else
  std::size_t place = 0;
  for (; (bits & 1) == 0; bits >>= 1) ++place;
  return place;
#endif
}

/// The index of the first byte whose top bit is set. `flags` is not 0 and has no other bits.
inline std::size_t first_flagged_byte(std::uint64_t flags) { return lowest_bit(flags) / 8; }

}  // namespace kelp::core::text

#endif  // KELP_CORE_TEXT_EIGHT_BYTES_HPP
