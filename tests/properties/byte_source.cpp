#include "properties/byte_source.hpp"

#include <array>
#include <cstring>
#include <limits>

namespace kelp::input::quill {

namespace {

using Limits = std::numeric_limits<double>;

constexpr std::array special_numbers = {0.0,
                                        -0.0,
                                        0.1173,
                                        1.5,
                                        5e-7,
                                        -4e-7,
                                        0.0000005,
                                        123456.7,
                                        999999.9999995,
                                        -99999.9999995,
                                        1234567.0,
                                        4294967296.000001,
                                        8796093022207.5,
                                        1e15,
                                        1e22,
                                        1e300,
                                        Limits::max(),
                                        -Limits::min(),
                                        Limits::denorm_min(),
                                        Limits::infinity(),
                                        -Limits::infinity(),
                                        Limits::quiet_NaN(),
                                        -Limits::quiet_NaN()};

// The zero byte of an exhausted source picks the first one.
constexpr std::string_view words[] = {"w",
                                      "opt",
                                      "#OPT",
                                      " Opt ",
                                      "freq",
                                      "model",
                                      "device",
                                      "maxiter",
                                      "MaxIter ",
                                      "tight",
                                      "a b",
                                      "",
                                      " ",
                                      "#",
                                      "=",
                                      "a=b",
                                      "f(1)",
                                      ")",
                                      "a,b",
                                      "'",
                                      "\"",
                                      "'a'",
                                      "\"a, b\"",
                                      "it's",
                                      "H",
                                      "Cl",
                                      "cl",
                                      "Xx",
                                      "Xyz",
                                      "XYZ a",
                                      "xyztraj b.xyz",
                                      "B 1 2",
                                      "b 1 x",
                                      "A 1 2 3",
                                      "S 1 2 1.5 10",
                                      "POST x",
                                      "POST",
                                      "0 1",
                                      "H 0 0 0",
                                      "# opt(a=1)",
                                      "a\nb",
                                      "\r",
                                      "a\vb",
                                      "\t",
                                      std::string_view("\0", 1),
                                      "\xC3\xA9",
                                      "\xFF",
                                      "a path/with blanks.xyz",
                                      "a name that does not fit into a string",
                                      "#A Name That Does Not Fit Into A String",
                                      "nan",
                                      "-1.5d2"};

template <typename T, typename Bits>
T from_bits(Bits bits) {
  static_assert(sizeof(T) == sizeof(Bits));
  T value{};
  std::memcpy(&value, &bits, sizeof value);
  return value;
}

}  // namespace

std::uint8_t ByteSource::byte() {
  if (bytes_.empty()) return 0;
  const auto first = static_cast<std::uint8_t>(bytes_.front());
  bytes_.remove_prefix(1);
  return first;
}

std::size_t ByteSource::below(std::size_t limit) { return byte() % limit; }

std::uint64_t ByteSource::bits(std::size_t byte_count) {
  std::uint64_t value = 0;
  for (; byte_count > 0; --byte_count) value = value << 8 | byte();
  return value;
}

std::int32_t ByteSource::integer() {
  if (below(4) != 3) return static_cast<std::int32_t>(below(16)) - 3;
  return from_bits<std::int32_t>(static_cast<std::uint32_t>(bits(4)));
}

double ByteSource::number() {
  switch (below(4)) {
    case 0:
      return static_cast<double>(integer()) / 1e3;
    case 1:
      return static_cast<double>(static_cast<std::int64_t>(bits(5))) / 1e6;
    case 2:
      return special_numbers[below(special_numbers.size())];
    default:
      return from_bits<double>(bits(8));
  }
}

std::string ByteSource::text() {
  if (below(4) != 3) return std::string(words[below(std::size(words))]);
  std::string text;
  for (std::size_t length = below(16); length > 0; --length) text += static_cast<char>(byte());
  return text;
}

}  // namespace kelp::input::quill
