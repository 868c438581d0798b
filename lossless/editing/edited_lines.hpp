#ifndef KELP_INPUT_QUILL_LOSSLESS_EDITING_EDITED_LINES_HPP
#define KELP_INPUT_QUILL_LOSSLESS_EDITING_EDITED_LINES_HPP

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "kelp/input/quill/lossless/line_change.hpp"
#include "kelp/input/quill/lossless/read_text.hpp"

namespace kelp::input::quill::lossless {

/// The new text and the lines in which it differs from the old one.
struct EditedText {
  std::string text = {};
  std::vector<LineChange> changes = {};
};

/// The lines of a text. Lines can be replaced, removed and inserted between others. A line is
/// always named by its position in the old text. A gap is named by the line after it, so gap 0 is
/// before all lines and the last gap is after them. Lines have to be inserted from the beginning of
/// the text to its end, after all replacements and removals; those in one gap keep the order in
/// which they were inserted.
class EditedLines {
 public:
  /// Keeps views of the text of `read`.
  explicit EditedLines(const ReadText& read);

  void replace(std::size_t line, std::string content);
  void remove(std::size_t line);
  void insert(std::size_t gap, std::string content);

  /// Inserts the lines of a new section into a gap. Where there is no blank line between them and
  /// the text before and after, an empty line is added.
  void insert_section(std::size_t gap, std::vector<std::string> contents);

  /// Returns the gap after the last line that is not blank, old or new; gap 0 if there is none.
  std::size_t gap_after_text() const;

  EditedText finish() const;

 private:
  struct OldLine {
    std::string_view content;
    std::string_view terminator;
    std::optional<std::string> replacement = std::nullopt;
    bool is_blank = false;
    bool is_removed = false;
  };

  bool has_text_before(std::size_t gap) const;
  bool has_text_after(std::size_t gap) const;
  bool has_blank_line_before(std::size_t gap) const;
  bool has_blank_line_after(std::size_t gap) const;
  std::size_t next_line(std::size_t gap) const;

  std::vector<OldLine> lines_;
  std::vector<std::vector<std::string>> gaps_;
  std::string_view usual_terminator_ = "\n";
  bool ends_without_terminator_ = false;
};

}  // namespace kelp::input::quill::lossless

#endif  // KELP_INPUT_QUILL_LOSSLESS_EDITING_EDITED_LINES_HPP
