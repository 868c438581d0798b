#ifndef KELP_INPUT_QUILL_EDIT_SUPPORT_HEADER_SURGERY_HPP
#define KELP_INPUT_QUILL_EDIT_SUPPORT_HEADER_SURGERY_HPP

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "edit_support/edited_lines.hpp"
#include "edit_support/tracked_document.hpp"

namespace kelp::input::quill::edit_support {

/// Brings the header lines of a text in line with an edited document.
class HeaderSurgery {
 public:
  /// `before` is the document of the old text and `after` what the edits made of it. Keeps
  /// references to both.
  HeaderSurgery(const std::vector<AccountedLine>& account, const QuillInput& before,
                const TrackedDocument& after);

  void change_lines(EditedLines& lines);
  void add_lines(EditedLines& lines);

  /// The gap behind the old header, where what belongs to no other place goes.
  std::size_t end() const { return positions_.empty() ? 0 : positions_.back() + 1; }

  /// Why some values cannot be spelled.
  const std::vector<std::string>& reasons() const { return reasons_; }

  /// The positions of the lines that were replaced.
  const std::vector<std::size_t>& replaced() const { return replaced_; }

 private:
  std::string spelled_line(const HeaderCommand& command);

  const QuillInput& before_;
  const QuillInput& after_;
  std::vector<std::optional<std::size_t>> origins_;
  std::vector<std::size_t> positions_;  // of the line of each command
  std::vector<std::string> reasons_;
  std::vector<std::size_t> replaced_;
};

}  // namespace kelp::input::quill::edit_support

#endif  // KELP_INPUT_QUILL_EDIT_SUPPORT_HEADER_SURGERY_HPP
