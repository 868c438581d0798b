#ifndef KELP_INPUT_QUILL_TOOL_TEXT_LINE_MATCHING_HPP
#define KELP_INPUT_QUILL_TOOL_TEXT_LINE_MATCHING_HPP

#include <cstddef>
#include <string_view>
#include <vector>

namespace kelp::input::quill::tool {

/// A run of lines that two texts share: `length` lines, from `old_begin` in the old text and from
/// `new_begin` in the new one.
struct MatchingRun {
  std::size_t old_begin = 0;
  std::size_t new_begin = 0;
  std::size_t length = 0;
};

/// Returns the lines that stay, as runs in order. The last run is empty and at the end of both
/// texts. All lines outside the runs are removed or added. Their number is the smallest possible,
/// unless the texts differ in more than a thousand lines: then it may be larger, since the search
/// would take too long.
std::vector<MatchingRun> match_lines(const std::vector<std::string_view>& old_lines,
                                     const std::vector<std::string_view>& new_lines);

/// Splits a text into lines that keep their "\n".
std::vector<std::string_view> lines_with_ends(std::string_view text);

/// Lines from `begin` to before `end` of each of two texts.
struct LineChange {
  std::size_t old_begin = 0;
  std::size_t old_end = 0;
  std::size_t new_begin = 0;
  std::size_t new_end = 0;
};

/// Returns the changes between the lines that stay, see match_lines().
std::vector<LineChange> find_line_changes(const std::vector<std::string_view>& old_lines,
                                          const std::vector<std::string_view>& new_lines);

}  // namespace kelp::input::quill::tool

#endif  // KELP_INPUT_QUILL_TOOL_TEXT_LINE_MATCHING_HPP
