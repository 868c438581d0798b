#ifndef KELP_INPUT_QUILL_EDIT_SUPPORT_MEANT_PARTS_HPP
#define KELP_INPUT_QUILL_EDIT_SUPPORT_MEANT_PARTS_HPP

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "edit_support/line_account.hpp"
#include "kelp/input/quill/document.hpp"

namespace kelp::input::quill::edit_support {

/// One part of a document that is written as a line of its own.
struct MeantPart {
  LineRole role = LineRole::Blank;
  std::optional<std::size_t> index = std::nullopt;
};

/// Returns the parts of `input` in the order of their lines.
std::vector<MeantPart> list_parts(const QuillInput& input);

/// Returns the line that stands for the part, without its end.
std::string line_text(const MeantPart& part, const QuillInput& input);

/// Whether a line of this content can be the one that stands for the part: line_text(), or the line
/// that a post-processing line was once read from, outer blanks aside.
bool may_stand_for(std::string_view content, const MeantPart& part, const QuillInput& input);

/// Returns the part in words with an article: "an atom of element A", "a header command", "an angle
/// constraint", "raw text".
std::string name_part(const MeantPart& part, const QuillInput& input);

}  // namespace kelp::input::quill::edit_support

#endif  // KELP_INPUT_QUILL_EDIT_SUPPORT_MEANT_PARTS_HPP
