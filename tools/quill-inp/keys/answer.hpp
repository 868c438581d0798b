#ifndef KELP_INPUT_QUILL_TOOL_KEYS_ANSWER_HPP
#define KELP_INPUT_QUILL_TOOL_KEYS_ANSWER_HPP

#include <optional>
#include <string>
#include <string_view>

#include "kelp/input/quill/document.hpp"
#include "quill-inp/keys/key.hpp"

namespace kelp::input::quill::tool {

/// Returns what `input` has under a key, one or more lines: the value of an assignment or
/// parameter, "flag" for a command or parameter without one, the list in parentheses for a
/// parameter list; for the special keys the number, the kind of geometry, the paths, or the atoms
/// with every digit. Nothing when there is no such thing.
std::optional<std::string> answer(const QuillInput& input, const Key& key);

/// Returns why there is no answer: what is missing, and the nearest name that is there.
std::string explain_no_answer(const QuillInput& input, std::string_view key_text, const Key& key);

/// Returns what to say of a key that names nothing yet and looks like one that does, or nothing for
/// other keys.
std::optional<std::string> explain_new_name(const QuillInput& input, std::string_view key_text,
                                            const CommandKey& key);

}  // namespace kelp::input::quill::tool

#endif  // KELP_INPUT_QUILL_TOOL_KEYS_ANSWER_HPP
