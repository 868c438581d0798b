#ifndef KELP_INPUT_QUILL_TESTS_PROPERTIES_BYTE_SOURCE_HPP
#define KELP_INPUT_QUILL_TESTS_PROPERTIES_BYTE_SOURCE_HPP

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace kelp::input::quill {

/// Makes values out of bytes, from the first to the last. After the last byte come zeros, so that
/// every byte sequence makes something and a change of one byte changes little.
class ByteSource {
 public:
  explicit ByteSource(std::string_view bytes) : bytes_(bytes) {}

  bool is_at_end() const { return bytes_.empty(); }

  std::uint8_t byte();

  /// A number below `limit`, which is at most 256 and not 0; takes one byte.
  std::size_t below(std::size_t limit);

  bool flip() { return below(2) == 1; }

  /// Often a small number, sometimes any number.
  std::int32_t integer();

  /// Sometimes a special number, often one with few decimals, sometimes any bit pattern.
  double number();

  /// Often a word that means something to the library, sometimes up to fifteen bytes as they come.
  std::string text();

 private:
  std::uint64_t bits(std::size_t byte_count);

  std::string_view bytes_;
};

}  // namespace kelp::input::quill

#endif  // KELP_INPUT_QUILL_TESTS_PROPERTIES_BYTE_SOURCE_HPP
