#ifndef KELP_INPUT_QUILL_EDIT_SUPPORT_EDITED_LINES_HPP
#define KELP_INPUT_QUILL_EDIT_SUPPORT_EDITED_LINES_HPP

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "edit_support/line_account.hpp"
#include "edit_support/surgical_edit.hpp"

namespace kelp::input::quill::edit_support {

/// The new text and how its lines relate to those of the old one.
struct EditedText {
  std::string text = {};
  std::vector<LineChange> changes = {};
};

/// The lines of a text, of which some are replaced, some removed, and between which others are put.
/// Lines are named by their position in the old text throughout; a gap is named by the line after
/// it, so that gap 0 is in front of all lines and the last gap behind them. Lines are put in from
/// the beginning of the text to its end, after all replacements and removals; in one gap they stand
/// in the order in which they were put there.
class EditedLines {
 public:
  /// Keeps a view of `text` and a reference to `account`.
  EditedLines(std::string_view text, const std::vector<AccountedLine>& account);

  void replace(std::size_t line, std::string content);
  void remove(std::size_t line);
  void insert(std::size_t gap, std::string content);

  /// Puts lines that are a section of their own into a gap, with an empty line between them and
  /// what stands before and after, as far as there is none yet.
  void insert_section(std::size_t gap, std::vector<std::string> contents);

  /// Returns the gap behind the last line that is not blank, old or new; gap 0 if there is none.
  std::size_t gap_behind_text() const;

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

}  // namespace kelp::input::quill::edit_support

#endif  // KELP_INPUT_QUILL_EDIT_SUPPORT_EDITED_LINES_HPP
