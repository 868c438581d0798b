#include "quill-inp/keys/key_list.hpp"

#include <cstddef>
#include <map>
#include <set>

#include "model/parameter_name.hpp"
#include "quill-inp/keys/key.hpp"

namespace kelp::input::quill::tool {

namespace {

/// Whether a key with this name finds a command with this name.
bool is_key(const std::string& name) {
  return !is_nameless(name) &&
         normalize_command_name(stored_command_name(name)) == normalize_command_name(name);
}

std::string key_of_position(std::size_t position) {
  return "@commands[" + std::to_string(position) + "]";
}

void add_parameters(const HeaderCommand& command, const std::string& key,
                    std::vector<std::string>& keys) {
  std::set<std::string> names;
  for (const CommandParameter& parameter : command.parameters) {
    const std::string name = normalize_parameter_name(parameter.name);
    if (!name.empty() && names.insert(name).second)
      keys.push_back(key + "." + escaped_name(parameter.name));
  }
}

}  // namespace

std::vector<std::string> list_keys(const QuillInput& input) {
  std::vector<std::string> keys;
  std::map<std::string, std::size_t> counts;
  for (std::size_t i = 0; i < input.commands.size(); ++i) {
    const HeaderCommand& command = input.commands[i];
    const std::size_t before = counts[normalize_command_name(command.name)]++;
    std::string key = is_key(command.name) ? escaped_name(command.name) : key_of_position(i);
    if (is_key(command.name) && before > 0) key += "[" + std::to_string(before) + "]";
    keys.push_back(key);
    add_parameters(command, key, keys);
  }
  return keys;
}

}  // namespace kelp::input::quill::tool
