#ifndef KELP_INPUT_QUILL_READER_LINE_CURSOR_HPP
#define KELP_INPUT_QUILL_READER_LINE_CURSOR_HPP

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "kelp/input/quill/lines.hpp"

namespace kelp::input::quill {

/// Walks forward over the lines of a text that are not blank. Blank lines have no meaning anywhere
/// in an input, so no section ever gets one. A line is trimmed when the cursor reaches it, and
/// copied for that only if there may be something to remove.
class LineCursor {
 public:
  /// Begins at the first line of `text` that is not blank, or at the end.
  explicit LineCursor(std::string_view text);

  LineCursor(const LineCursor&) = delete;
  LineCursor& operator=(const LineCursor&) = delete;

  /// Makes the cursor keep `records`, which has one entry for each of all_lines() and must live as
  /// long as the cursor. Without it the roles of lines are not kept.
  void keep(std::vector<LineRecord>& records) { records_ = records.data(); }

  /// Every line of the text, blank ones included, without its terminator.
  const std::vector<std::string>& all_lines() const { return lines_; }

  bool at_end() const { return index_ == lines_.size(); }

  /// The line as it is in the text, without its terminator; not to be called at the end.
  const std::string& line() const { return lines_[index_]; }

  /// The line without outer blanks, never empty, until the cursor moves on; not to be called at the
  /// end.
  std::string_view trimmed() const { return trimmed_; }

  /// The number of the line in the text, blank lines included, counted from 1.
  std::uint64_t number() const { return std::uint64_t{index_} + 1; }

  /// How many lines there are from this one to the end, blank ones included.
  std::size_t remaining() const { return lines_.size() - index_; }

  /// Notes what the line was read as, and moves on to the next line that is not blank, or to the
  /// end. `index` is the position in the list that `role` names. Not to be called at the end.
  void take(LineRole role, std::optional<std::size_t> index = std::nullopt) {
    if (records_ != nullptr) note(role, index);
    advance();
  }

 private:
  void note(LineRole role, std::optional<std::size_t> index);
  void advance();
  void skip_blank_lines();

  std::vector<std::string> lines_;
  std::size_t index_ = 0;
  std::string_view trimmed_;  // of the line itself or of the copy
  std::string copy_;
  LineRecord* records_ = nullptr;
};

}  // namespace kelp::input::quill

#endif  // KELP_INPUT_QUILL_READER_LINE_CURSOR_HPP
