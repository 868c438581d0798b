#ifndef KELP_INPUT_QUILL_LOSSLESS_EDITING_HEADER_SURGERY_HPP
#define KELP_INPUT_QUILL_LOSSLESS_EDITING_HEADER_SURGERY_HPP

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "editing/edited_lines.hpp"
#include "kelp/input/quill/lossless/quoting.hpp"
#include "kelp/input/quill/lossless/read_text.hpp"
#include "kelp/input/quill/lossless/tracked_document.hpp"

namespace kelp::input::quill::lossless {

/// Changes the header lines of a text to those of an edited document.
class HeaderSurgery {
 public:
  /// `after` is the document of `read` after the edits. Keeps references to both documents.
  HeaderSurgery(const ReadText& read, const TrackedDocument& after);

  void change_lines(EditedLines& lines);
  void add_lines(EditedLines& lines);

  /// The gap after the old header, for lines that have no other place.
  std::size_t end() const { return positions_.empty() ? 0 : positions_.back() + 1; }

  /// Why some pieces of changed lines cannot be written.
  const std::vector<QuotingProblem>& problems() const { return problems_; }

 private:
  std::string quoted_line(const HeaderCommand& command);

  const QuillInput& before_;
  const QuillInput& after_;
  std::vector<std::optional<std::size_t>> origins_;
  std::vector<std::size_t> positions_;  // of the line of each command
  std::vector<QuotingProblem> problems_;
};

}  // namespace kelp::input::quill::lossless

#endif  // KELP_INPUT_QUILL_LOSSLESS_EDITING_HEADER_SURGERY_HPP
