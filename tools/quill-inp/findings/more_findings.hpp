#ifndef KELP_INPUT_QUILL_TOOL_FINDINGS_MORE_FINDINGS_HPP
#define KELP_INPUT_QUILL_TOOL_FINDINGS_MORE_FINDINGS_HPP

#include <cstddef>
#include <string>
#include <string_view>

namespace kelp::input::quill::tool {

/// Returns how many findings of a rule are not shown: "and 123456 more of QL305".
inline std::string words_of_more(std::string_view code, std::size_t count) {
  return "and " + std::to_string(count) + " more of " + std::string(code);
}

}  // namespace kelp::input::quill::tool

#endif  // KELP_INPUT_QUILL_TOOL_FINDINGS_MORE_FINDINGS_HPP
