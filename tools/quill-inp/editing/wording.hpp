#ifndef KELP_INPUT_QUILL_TOOL_EDITING_WORDING_HPP
#define KELP_INPUT_QUILL_TOOL_EDITING_WORDING_HPP

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "quill-inp/editing/edit_report.hpp"
#include "quill-inp/editing/losses.hpp"

// The words for the report about an edit. They decide nothing.

namespace kelp::input::quill::tool {

/// The words for a loss, and the line that they are about, if there is one: a line of the old text
/// that says more than is kept, or a line of the new text that would be read differently.
struct LossWords {
  std::string text = {};
  std::optional<std::size_t> line = std::nullopt;
};

/// Returns the words for the losses, in the order of their members, but for at most `most` of them.
std::vector<LossWords> words(const Losses& losses, std::size_t most);

std::string words(const EditNote& note);

}  // namespace kelp::input::quill::tool

#endif  // KELP_INPUT_QUILL_TOOL_EDITING_WORDING_HPP
