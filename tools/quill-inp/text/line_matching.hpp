#ifndef KELP_INPUT_QUILL_TOOL_TEXT_LINE_MATCHING_HPP
#define KELP_INPUT_QUILL_TOOL_TEXT_LINE_MATCHING_HPP

#include <cstddef>
#include <string_view>
#include <vector>

namespace kelp::input::quill::tool {

/// Lines that two texts share, one after the other in both: `length` of them, from `old_begin` in
/// one and `new_begin` in the other.
struct MatchingRun {
  std::size_t old_begin = 0;
  std::size_t new_begin = 0;
  std::size_t length = 0;
};

/// Returns the lines that stay, as runs in order, the last one empty and at the end of both texts.
/// All lines outside the runs are removed or added. Their number is the least possible, unless the
/// texts differ in more than a thousand lines: then a longer list may come back rather than a
/// search that takes forever.
std::vector<MatchingRun> match_lines(const std::vector<std::string_view>& old_lines,
                                     const std::vector<std::string_view>& new_lines);

}  // namespace kelp::input::quill::tool

#endif  // KELP_INPUT_QUILL_TOOL_TEXT_LINE_MATCHING_HPP
