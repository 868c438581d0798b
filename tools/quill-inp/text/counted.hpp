#ifndef KELP_INPUT_QUILL_TOOL_TEXT_COUNTED_HPP
#define KELP_INPUT_QUILL_TOOL_TEXT_COUNTED_HPP

#include <cstdint>
#include <string>
#include <string_view>

namespace kelp::input::quill::tool {

/// Returns a number of things in words: "1 atom", "2 atoms". `noun` takes an "s" for several.
inline std::string counted(std::uint64_t count, std::string_view noun) {
  return std::to_string(count) + " " + std::string(noun) + (count == 1 ? "" : "s");
}

}  // namespace kelp::input::quill::tool

#endif  // KELP_INPUT_QUILL_TOOL_TEXT_COUNTED_HPP
