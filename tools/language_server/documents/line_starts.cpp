#include "language_server/documents/line_starts.hpp"

#include <algorithm>
#include <iterator>

namespace kelp::input::quill::language_server {

namespace {

/// Whether a line begins at an offset from 0 to the length of a text. Only the bytes on both sides
/// of the offset decide.
bool is_line_start(std::string_view text, std::size_t offset) {
  if (offset == 0 || text[offset - 1] == '\n') return true;
  return text[offset - 1] == '\r' && (offset == text.size() || text[offset] != '\n');
}

/// Returns the line starts of a text from one offset to another, the last one included.
std::vector<std::size_t> starts_between(std::string_view text, std::size_t first,
                                        std::size_t last) {
  std::vector<std::size_t> starts;
  for (std::size_t offset = first; offset <= last; ++offset) {
    if (is_line_start(text, offset)) starts.push_back(offset);
  }
  return starts;
}

}  // namespace

LineStarts::LineStarts(std::string_view text) : starts_(starts_between(text, 0, text.size())) {}

std::size_t LineStarts::line_at(std::size_t offset) const {
  const auto after = std::upper_bound(starts_.begin(), starts_.end(), offset);
  return static_cast<std::size_t>(after - starts_.begin()) - 1;
}

std::string_view LineStarts::content(std::size_t line, std::string_view text) const {
  const std::size_t end = line + 1 < count() ? starts_[line + 1] : text.size();
  std::string_view content = text.substr(starts_[line], end - starts_[line]);
  if (line + 1 == count()) return content;
  const bool is_two_bytes = content.size() > 1 && content.substr(content.size() - 2) == "\r\n";
  content.remove_suffix(is_two_bytes ? 2 : 1);
  return content;
}

void LineStarts::replace(std::size_t offset, std::size_t removed, std::size_t inserted,
                         std::string_view text) {
  // Whether a line begins at one of the two ends of the change may be different from before.
  const auto first = std::lower_bound(starts_.begin(), starts_.end(), offset);
  const auto last = std::upper_bound(first, starts_.end(), offset + removed);
  for (auto start = last; start != starts_.end(); ++start) *start = *start - removed + inserted;
  const std::vector<std::size_t> fresh = starts_between(text, offset, offset + inserted);
  const auto kept = static_cast<std::size_t>(std::distance(first, last));
  const std::size_t shared = std::min(kept, fresh.size());
  const auto middle = std::copy_n(fresh.begin(), shared, first);
  if (kept > shared) {
    starts_.erase(middle, last);
  } else {
    starts_.insert(middle, fresh.begin() + static_cast<std::ptrdiff_t>(shared), fresh.end());
  }
}

}  // namespace kelp::input::quill::language_server
