#include "reader/line_cursor.hpp"

#include "kelp/core/text.hpp"

namespace kelp::input::quill {

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
    trimmed_ = core::text::trim(lines_[index_]);
    if (!trimmed_.empty()) return;
  }
}

}  // namespace kelp::input::quill
