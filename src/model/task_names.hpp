#ifndef KELP_INPUT_QUILL_MODEL_TASK_NAMES_HPP
#define KELP_INPUT_QUILL_MODEL_TASK_NAMES_HPP

#include <array>
#include <string_view>

namespace kelp::input::quill {

/// The names of the commands that say what to compute, in canonical form.
inline constexpr std::array<std::string_view, 6> task_names = {"sp",   "opt", "ts",
                                                               "freq", "irc", "scan"};

/// Returns whether a canonical command name is that of a task.
constexpr bool is_task_name(std::string_view canonical_name) {
  for (const std::string_view task : task_names) {
    if (task == canonical_name) return true;
  }
  return false;
}

}  // namespace kelp::input::quill

#endif  // KELP_INPUT_QUILL_MODEL_TASK_NAMES_HPP
