#ifndef KELP_INPUT_QUILL_READER_LINE_CURSOR_HPP
#define KELP_INPUT_QUILL_READER_LINE_CURSOR_HPP

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace kelp::input::quill {

/// Walks forward over the lines of a text that are not blank. Blank lines mean nothing anywhere in
/// an input, so no section ever sees one. Each line is trimmed once, when the cursor reaches it.
class LineCursor {
 public:
  /// Stands on the first line of `text` that is not blank, or at the end.
  explicit LineCursor(std::string_view text);

  bool at_end() const { return index_ == lines_.size(); }

  /// The line as it stands in the text, without its terminator; not to be asked at the end.
  const std::string& line() const { return lines_[index_]; }

  /// The line without outer blanks, never empty; not to be asked at the end.
  const std::string& trimmed() const { return trimmed_; }

  /// The number of the line in the text, blank lines included, counted from 1.
  std::uint64_t number() const { return std::uint64_t{index_} + 1; }

  /// How many lines there are from this one to the end, blank ones included.
  std::size_t remaining() const { return lines_.size() - index_; }

  /// Moves on to the next line that is not blank, or to the end; not to be called at the end.
  void advance();

 private:
  void skip_blank_lines();

  std::vector<std::string> lines_;
  std::size_t index_ = 0;
  std::string trimmed_;
};

}  // namespace kelp::input::quill

#endif  // KELP_INPUT_QUILL_READER_LINE_CURSOR_HPP
