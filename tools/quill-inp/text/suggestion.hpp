#ifndef KELP_INPUT_QUILL_TOOL_TEXT_SUGGESTION_HPP
#define KELP_INPUT_QUILL_TOOL_TEXT_SUGGESTION_HPP

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kelp::input::quill::tool {

/// Returns the name that the user probably wanted to type: the one with the fewest letters changed,
/// left out, added or swapped with their neighbour, ignoring letter case; the first of several.
/// Returns nothing when even that one has more than one mistake for every three letters of `word`,
/// or of the name.
std::optional<std::string> nearest_name(std::string_view word,
                                        const std::vector<std::string>& names);

/// Returns "; did you mean 'name'?", or the empty text without a name.
std::string did_you_mean(const std::optional<std::string>& name);

/// Returns this text for the nearest name.
std::string suggestion(std::string_view word, const std::vector<std::string>& names);

}  // namespace kelp::input::quill::tool

#endif  // KELP_INPUT_QUILL_TOOL_TEXT_SUGGESTION_HPP
