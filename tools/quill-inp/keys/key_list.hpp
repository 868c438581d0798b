#ifndef KELP_INPUT_QUILL_TOOL_KEYS_KEY_LIST_HPP
#define KELP_INPUT_QUILL_TOOL_KEYS_KEY_LIST_HPP

#include <string>
#include <vector>

#include "kelp/input/quill/document.hpp"

namespace kelp::input::quill::tool {

/// Returns the keys of all commands and parameters of an input, in its order and in its letter
/// case: "opt", "opt.maxiter", "opt[1]" for the second command with that name, and "@commands[2]"
/// for one whose name cannot be a key. A parameter is not listed if one before it has the same
/// name, or if it has none. parse_key() reads each of them.
std::vector<std::string> list_keys(const QuillInput& input);

}  // namespace kelp::input::quill::tool

#endif  // KELP_INPUT_QUILL_TOOL_KEYS_KEY_LIST_HPP
