#ifndef KELP_INPUT_QUILL_TOOL_FILES_SHA256_HPP
#define KELP_INPUT_QUILL_TOOL_FILES_SHA256_HPP

#include <string>
#include <string_view>

namespace kelp::input::quill::tool {

/// Returns the SHA-256 of a text, as 64 hexadecimal digits in lower case.
std::string sha256_of(std::string_view text);

}  // namespace kelp::input::quill::tool

#endif  // KELP_INPUT_QUILL_TOOL_FILES_SHA256_HPP
