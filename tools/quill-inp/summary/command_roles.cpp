#include "quill-inp/summary/command_roles.hpp"

#include <string_view>

#include "model/task_names.hpp"

namespace kelp::input::quill::tool {

namespace {

/// Returns the command whose value is that of the assignment `name`, or a null pointer.
const HeaderCommand* find_assignment(const QuillInput& input, std::string_view name) {
  const HeaderCommand* command = input.find_command(name);
  const bool has_value = command != nullptr && command->kind == HeaderCommandKind::Assignment &&
                         command->value.has_value();
  return has_value ? command : nullptr;
}

}  // namespace

CommandRoles sort_commands(const QuillInput& input) {
  const HeaderCommand* const model = find_assignment(input, "model");
  const HeaderCommand* const device = find_assignment(input, "device");
  CommandRoles roles;
  if (model != nullptr) roles.model = model->value;
  if (device != nullptr) roles.device = device->value;
  for (const HeaderCommand& command : input.commands) {
    if (is_task_name(normalize_command_name(command.name))) {
      roles.tasks.push_back(&command);
    } else if (&command != model && &command != device) {
      roles.others.push_back(&command);
    }
  }
  return roles;
}

}  // namespace kelp::input::quill::tool
