#include <algorithm>
#include <cstddef>

#include "kelp/core/text.hpp"

namespace kelp::core::text {

namespace {

/// One more line than there are terminators, unless nothing follows the last of them.
std::size_t count_lines(std::string_view text) {
  if (text.empty()) return 0;
  const auto terminators = static_cast<std::size_t>(std::count(text.begin(), text.end(), '\n'));
  return text.back() == '\n' ? terminators : terminators + 1;
}

std::string_view without_carriage_return(std::string_view line) {
  if (!line.empty() && line.back() == '\r') line.remove_suffix(1);
  return line;
}

}  // namespace

std::vector<std::string> split_lines(std::string_view text) {
  std::vector<std::string> lines;
  lines.reserve(count_lines(text));
  for (std::size_t end = text.find('\n'); end != std::string_view::npos; end = text.find('\n')) {
    lines.emplace_back(without_carriage_return(text.substr(0, end)));
    text.remove_prefix(end + 1);
  }
  // Only a "\n" makes the "\r" before it part of a terminator, so the last line keeps its own.
  if (!text.empty()) lines.emplace_back(text);
  return lines;
}

}  // namespace kelp::core::text
