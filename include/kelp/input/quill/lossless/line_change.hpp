#ifndef KELP_INPUT_QUILL_LOSSLESS_LINE_CHANGE_HPP
#define KELP_INPUT_QUILL_LOSSLESS_LINE_CHANGE_HPP

/// @file
/// A line that an edit changed.
///
///     const ReadText read = read_text("#opt\n#model = m1\n");
///     TrackedDocument document(read.result.input);
///     document.set_model("m2");
///     const LineChange change = render(read, document).changes.front();
///     change.old_line;  // 2
///     change.new_line;  // 2

#include <cstddef>
#include <optional>

namespace kelp::input::quill::lossless {

/// One line that is not as before. A changed line has both numbers, an added line only the new one,
/// and a removed line only the old one. Lines are counted from 1 in their own text.
struct LineChange {
  std::optional<std::size_t> old_line = std::nullopt;  ///< its number in the old text
  std::optional<std::size_t> new_line = std::nullopt;  ///< its number in the new text
};

}  // namespace kelp::input::quill::lossless

#endif  // KELP_INPUT_QUILL_LOSSLESS_LINE_CHANGE_HPP
