#include "quill-inp/files/sha256.hpp"

// libmd is on every Debian system, since dpkg needs it. It is one small library that needs no
// others, so the program starts as fast as before.
#include <sha2.h>

#include <cstdint>

#include "quill-inp/text/hexadecimal.hpp"

namespace kelp::input::quill::tool {

std::string sha256_of(std::string_view text) {
  SHA2_CTX context = {};
  SHA256Init(&context);
  SHA256Update(&context, reinterpret_cast<const std::uint8_t*>(text.data()), text.size());
  std::uint8_t digest[SHA256_DIGEST_LENGTH] = {};
  SHA256Final(digest, &context);
  std::string digits;
  digits.reserve(2 * sizeof digest);
  for (const std::uint8_t byte : digest) append_hexadecimal(digits, byte, 2);
  return digits;
}

}  // namespace kelp::input::quill::tool
