#ifndef KELP_INPUT_QUILL_TOOL_SUMMARY_COMMAND_ROLES_HPP
#define KELP_INPUT_QUILL_TOOL_SUMMARY_COMMAND_ROLES_HPP

#include <optional>
#include <string>
#include <vector>

#include "kelp/input/quill/document.hpp"

namespace kelp::input::quill::tool {

/// The header commands of an input, sorted by their purpose.
struct CommandRoles {
  std::vector<const HeaderCommand*> tasks = {};      // what to compute
  std::optional<std::string> model = std::nullopt;   // as InputEditor::model() returns it
  std::optional<std::string> device = std::nullopt;  // as InputEditor::device() returns it
  std::vector<const HeaderCommand*> others = {};     // the rest, including a second model line
};

/// Sorts the commands of `input`. The result has pointers into `input`.
CommandRoles sort_commands(const QuillInput& input);

}  // namespace kelp::input::quill::tool

#endif  // KELP_INPUT_QUILL_TOOL_SUMMARY_COMMAND_ROLES_HPP
