#ifndef KELP_INPUT_QUILL_TOOL_EDITING_WORDING_HPP
#define KELP_INPUT_QUILL_TOOL_EDITING_WORDING_HPP

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "quill-inp/editing/edit_report.hpp"
#include "quill-inp/editing/losses.hpp"

// The words for what there is to say about an edit. All decisions were taken before.

namespace kelp::input::quill::tool {

/// Words about a text, and the line that they are about, if they are about one: a line of the old
/// text that says more than is kept, or one of the new text that would be read differently.
struct LossWords {
  std::string text = {};
  std::optional<std::size_t> line = std::nullopt;
};

/// Returns the words for the losses, in the order of their members, and for no more than `most`.
std::vector<LossWords> words(const Losses& losses, std::size_t most);

std::string words(const EditNote& note);

}  // namespace kelp::input::quill::tool

#endif  // KELP_INPUT_QUILL_TOOL_EDITING_WORDING_HPP
