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
  /// Keeps a reference to `read`.
  explicit EditedLines(const ReadText& read);

  void replace(std::size_t line, std::string_view content);
  void remove(std::size_t line) { is_removed_[line] = true; }
  void insert(std::size_t gap, std::string_view content);

  /// Begins a new section in a gap and returns the gap for its lines. If no blank line is
  /// between them and the text before, an empty line is added.
  std::size_t begin_section(std::size_t gap);

  /// Ends the section whose lines were inserted into a gap, with an empty line if there is text
  /// after it and no blank line between.
  void end_section(std::size_t gap);

  /// Returns the gap after the last line that is not blank, old or new; gap 0 if there is none.
  std::size_t gap_after_text() const;

  /// Returns the new text. To be called once, at the end.
  EditedText finish();

 private:
  /// A new line: the old line that it replaces, or the gap that it is in, and where its content is
  /// in contents_.
  struct NewLine {
    std::size_t position;
    std::size_t offset;
    std::size_t length;
  };

  NewLine add_content(std::size_t position, std::string_view content);
  std::string_view content_of_new(const NewLine& line) const;
  bool is_blank_old(std::size_t line) const { return read_.lines[line].role == LineRole::Blank; }
  bool has_text_inserted() const;
  bool has_text_before(std::size_t gap) const;
  bool has_text_after(std::size_t gap) const;
  bool has_blank_line_before(std::size_t gap) const;
  bool has_blank_line_after(std::size_t gap) const;
  std::size_t next_line(std::size_t gap) const;

  const ReadText& read_;
  // Most lines of most texts stay, so only those that do not take memory, and of many new ones the
  // contents are in one string.
  std::vector<bool> is_removed_;
  std::vector<NewLine> replaced_;
  std::vector<NewLine> inserted_;
  std::string contents_;
};

}  // namespace kelp::input::quill::lossless

#endif  // KELP_INPUT_QUILL_LOSSLESS_EDITING_EDITED_LINES_HPP
