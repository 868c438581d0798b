#ifndef KELP_INPUT_QUILL_TOOL_TEXT_HEXADECIMAL_HPP
#define KELP_INPUT_QUILL_TOOL_TEXT_HEXADECIMAL_HPP

#include <cstdint>
#include <string>
#include <string_view>

namespace kelp::input::quill::tool {

inline constexpr std::string_view hexadecimal_digits = "0123456789abcdef";

/// Appends the last `digits` hexadecimal digits of a number, in lower case.
inline void append_hexadecimal(std::string& out, std::uint32_t number, unsigned digits) {
  while (digits-- > 0) out += hexadecimal_digits[(number >> (4U * digits)) & 0xFU];
}

}  // namespace kelp::input::quill::tool

#endif  // KELP_INPUT_QUILL_TOOL_TEXT_HEXADECIMAL_HPP
