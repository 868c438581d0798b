#include "quill-inp/keys/ambiguity.hpp"

#include <algorithm>
#include <cstdint>
#include <optional>
#include <utility>

#include "model/parameter_name.hpp"
#include "quill-inp/keys/answer.hpp"

namespace kelp::input::quill::tool {

namespace {

std::vector<std::size_t> list_other_commands(const QuillInput& input, std::size_t used) {
  const std::string name = normalize_command_name(input.commands[used].name);
  std::vector<std::size_t> others;
  for (std::size_t i = used + 1; i < input.commands.size(); ++i) {
    if (normalize_command_name(input.commands[i].name) == name) others.push_back(i);
  }
  return others;
}

std::size_t count_later_parameters(const HeaderCommand& command, std::size_t used) {
  const std::string name = normalize_parameter_name(command.parameters[used].name);
  std::size_t count = 0;
  for (std::size_t i = used + 1; i < command.parameters.size(); ++i)
    count += normalize_parameter_name(command.parameters[i].name) == name ? 1U : 0U;
  return count;
}

void add_once(Ambiguity&& ambiguity, std::vector<Ambiguity>& all) {
  if (std::find(all.begin(), all.end(), ambiguity) == all.end())
    all.push_back(std::move(ambiguity));
}

}  // namespace

bool operator==(const Ambiguity& left, const Ambiguity& right) {
  return left.command == right.command && left.other_commands == right.other_commands &&
         left.parameter == right.parameter && left.other_parameters == right.other_parameters;
}

void add_ambiguities(const QuillInput& input, const Key& key, std::vector<Ambiguity>& ambiguities) {
  const auto* command_key = std::get_if<CommandKey>(&key);
  if (command_key == nullptr) return;
  const HeaderCommand* command = find_command(input, *command_key);
  if (command == nullptr) return;
  const auto used = static_cast<std::size_t>(command - input.commands.data());
  if (!command_key->occurrence && !command_key->position) {
    std::vector<std::size_t> others = list_other_commands(input, used);
    if (!others.empty()) add_once({used, command->name, std::move(others)}, ambiguities);
  }
  if (!command_key->parameter) return;
  const std::optional<std::uint64_t> parameter =
      find_parameter_index(*command, *command_key->parameter);
  const std::size_t others = parameter ? count_later_parameters(*command, *parameter) : 0;
  if (others > 0)
    add_once({used, command->name, {}, command->parameters[*parameter].name, others}, ambiguities);
}

}  // namespace kelp::input::quill::tool
