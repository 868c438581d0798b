#include <algorithm>
#include <cstddef>

#include "kelp/core/text.hpp"

namespace kelp::core::text {

namespace {

std::size_t count_terminators(std::string_view text) {
  // Compilers count sixteen or more bytes at a time if the count itself fits in a byte.
  constexpr std::size_t block_bytes = 128;
  std::size_t count = 0;
  for (; text.size() >= block_bytes; text.remove_prefix(block_bytes)) {
    unsigned char block_count = 0;
    for (const char c : text.substr(0, block_bytes)) {
      block_count = static_cast<unsigned char>(block_count + (c == '\n' ? 1 : 0));
    }
    count += block_count;
  }
  return count + static_cast<std::size_t>(std::count(text.begin(), text.end(), '\n'));
}

/// One more than the count of terminators, unless nothing follows the last of them.
std::size_t count_lines(std::string_view text) {
  const bool is_ended = text.empty() || text.back() == '\n';
  return count_terminators(text) + (is_ended ? 0 : 1);
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
