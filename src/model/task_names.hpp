#ifndef KELP_INPUT_QUILL_MODEL_TASK_NAMES_HPP
#define KELP_INPUT_QUILL_MODEL_TASK_NAMES_HPP

#include <algorithm>
#include <array>
#include <string_view>

namespace kelp::input::quill {

/// The names of the commands that say what to compute, in canonical form.
inline constexpr std::array<std::string_view, 6> task_names = {"sp",   "opt", "ts",
                                                               "freq", "irc", "scan"};

/// Returns whether a canonical command name is that of a task.
inline bool is_task_name(std::string_view canonical_name) {
  return std::find(task_names.begin(), task_names.end(), canonical_name) != task_names.end();
}

}  // namespace kelp::input::quill

#endif  // KELP_INPUT_QUILL_MODEL_TASK_NAMES_HPP
