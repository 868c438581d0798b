#include "reader/line_cursor.hpp"

#include "kelp/core/text.hpp"

namespace kelp::input::quill {

namespace {

bool is_visible(char c) { return c > ' ' && c <= '~'; }

/// A visible ASCII character is never white space. So most lines of an input, which are atoms, need
/// no copy.
bool has_no_outer_blanks(const std::string& line) {
  return !line.empty() && is_visible(line.front()) && is_visible(line.back());
}

}  // namespace

LineCursor::LineCursor(std::string_view text) : lines_(core::text::split_lines(text)) {
  skip_blank_lines();
}

void LineCursor::note(LineRole role, std::optional<std::size_t> index) {
  records_[index_].role = role;
  records_[index_].index = index;
}

void LineCursor::advance() {
  ++index_;
  skip_blank_lines();
}

void LineCursor::skip_blank_lines() {
  for (; index_ < lines_.size(); ++index_) {
    if (has_no_outer_blanks(lines_[index_])) {
      trimmed_ = lines_[index_];
      return;
    }
    copy_ = core::text::trim(lines_[index_]);
    trimmed_ = copy_;
    if (!trimmed_.empty()) return;
  }
}

}  // namespace kelp::input::quill
