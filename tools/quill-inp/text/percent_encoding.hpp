#ifndef KELP_INPUT_QUILL_TOOL_TEXT_PERCENT_ENCODING_HPP
#define KELP_INPUT_QUILL_TOOL_TEXT_PERCENT_ENCODING_HPP

#include <string>
#include <string_view>

// Paths as they are in addresses: "/home/user/a b.qin" is "/home/user/a%20b.qin".

namespace kelp::input::quill::tool {

/// Returns a path as an address has it: every byte but "/", ASCII letters, digits and "-._~"
/// becomes a "%" and two hexadecimal digits in upper case.
std::string percent_encoded(std::string_view path);

/// Returns the bytes that a part of an address stands for, with digits in either case. A "%" that
/// is not before two digits stands for itself.
std::string percent_decoded(std::string_view text);

}  // namespace kelp::input::quill::tool

#endif  // KELP_INPUT_QUILL_TOOL_TEXT_PERCENT_ENCODING_HPP
