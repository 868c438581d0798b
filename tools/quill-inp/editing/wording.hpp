#ifndef KELP_INPUT_QUILL_TOOL_EDITING_WORDING_HPP
#define KELP_INPUT_QUILL_TOOL_EDITING_WORDING_HPP

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "quill-inp/editing/addition_doubts.hpp"
#include "quill-inp/editing/edit_report.hpp"
#include "quill-inp/editing/losses.hpp"

// The messages of the report about an edit. They are not used for decisions.

namespace kelp::input::quill::tool {

/// The words for a loss, and the line that they are about, if there is one: a line of the old text
/// that says more than is kept, or a line of the new text that would be read differently.
struct LossWords {
  std::string text = {};
  std::optional<std::size_t> line = std::nullopt;
};

/// Returns the words for at most `most` of the losses, in the order of their members.
std::vector<LossWords> words(const Losses& losses, std::size_t most);

std::string words(const EditNote& note);

/// Returns why something that was added is very probably a mistake: "'B 5 9' names atom 9, but
/// there are only 3 atoms".
std::string words(const AdditionDoubt& doubt);

/// Returns what else a key fits: the commands on the lines with these numbers, of which there is
/// one or more, and the other parameters of the same command.
std::string other_commands_words(const Ambiguity& ambiguity, const std::vector<std::size_t>& lines);
std::string other_parameters_words(const Ambiguity& ambiguity);

}  // namespace kelp::input::quill::tool

#endif  // KELP_INPUT_QUILL_TOOL_EDITING_WORDING_HPP
