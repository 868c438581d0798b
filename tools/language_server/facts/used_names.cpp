#include "language_server/facts/used_names.hpp"

#include <algorithm>
#include <cstddef>
#include <filesystem>
#include <optional>

#include "kelp/core/text.hpp"
#include "language_server/facts/folder_entries.hpp"
#include "quill-inp/batch/file_header.hpp"

namespace kelp::input::quill::language_server {

namespace {

namespace fs = std::filesystem;

// A person waits for the answer.
constexpr std::size_t most_files = 100;

/// Returns the files next to a file that have the same ending.
std::vector<std::string> neighbours_of(const fs::path& file) {
  std::vector<std::string> found;
  const fs::path folder = file.has_parent_path() ? file.parent_path() : fs::path(".");
  for_each_entry(folder, [&](const fs::directory_entry& entry) {
    const fs::path& path = entry.path();
    const bool is_other = path.filename() != file.filename();
    if (is_other && path.extension() == file.extension()) found.push_back(path.string());
  });
  std::sort(found.begin(), found.end());
  found.resize(std::min(found.size(), most_files));
  return found;
}

}  // namespace

void UsedNames::add_command(std::string_view name) {
  const std::string canonical = normalize_command_name(name);
  if (!canonical.empty()) commands_[canonical];
}

void UsedNames::add(const std::vector<HeaderCommand>& commands) {
  for (const HeaderCommand& command : commands) {
    const std::string canonical = normalize_command_name(command.name);
    if (canonical.empty()) continue;
    Names& parameters = commands_[canonical];
    for (const CommandParameter& parameter : command.parameters)
      parameters.emplace(core::text::to_lower_copy(parameter.name), parameter.name);
  }
}

void UsedNames::add_neighbours(const std::string& path) {
  for (const std::string& neighbour : neighbours_of(path)) {
    if (const auto header = tool::read_header(neighbour)) add(header->commands);
  }
}

std::vector<std::string> UsedNames::commands() const {
  std::vector<std::string> names;
  for (const auto& [name, parameters] : commands_) names.push_back(name);
  return names;
}

std::vector<std::string> UsedNames::parameters_of(std::string_view command) const {
  std::vector<std::string> names;
  const auto found = commands_.find(normalize_command_name(command));
  if (found == commands_.end()) return names;
  for (const auto& [small, name] : found->second) names.push_back(name);
  return names;
}

}  // namespace kelp::input::quill::language_server
