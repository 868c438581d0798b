#ifndef KELP_INPUT_QUILL_LOSSLESS_EDIT_EDITED_LINES_HPP
#define KELP_INPUT_QUILL_LOSSLESS_EDIT_EDITED_LINES_HPP

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "lossless_edit/read_text.hpp"

namespace kelp::input::quill::lossless_edit {

/// One line that is not as before: changed when it has both numbers, added without the old one,
/// removed without the new one. Numbers count from 1 in the respective text.
struct LineChange {
  std::optional<std::size_t> old_line = std::nullopt;
  std::optional<std::size_t> new_line = std::nullopt;
};

/// The new text and how its lines relate to those of the old one.
struct EditedText {
  std::string text = {};
  std::vector<LineChange> changes = {};
};

/// The lines of a text, of which some are replaced, some removed, and between which others are put.
/// Lines are named by their position in the old text throughout; a gap is named by the line after
/// it, so that gap 0 is before all lines and the last gap after them. Lines are put in from the
/// beginning of the text to its end, after all replacements and removals; in one gap they are in
/// the order in which they were put there.
class EditedLines {
 public:
  /// Keeps views of the text of `read`.
  explicit EditedLines(const ReadText& read);

  void replace(std::size_t line, std::string content);
  void remove(std::size_t line);
  void insert(std::size_t gap, std::string content);

  /// Puts lines that are a section of their own into a gap, with an empty line between them and
  /// what is before and after, as far as there is none yet.
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

}  // namespace kelp::input::quill::lossless_edit

#endif  // KELP_INPUT_QUILL_LOSSLESS_EDIT_EDITED_LINES_HPP
