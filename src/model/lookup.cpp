#include <algorithm>
#include <cstddef>
#include <utility>

#include "kelp/core/text.hpp"
#include "kelp/input/quill/document.hpp"
#include "model/parameter_name.hpp"
#include "model/task_names.hpp"

namespace kelp::input::quill {

namespace text = kelp::core::text;

namespace {

bool has_canonical_name(const HeaderCommand& command, std::string_view canonical_name) {
  return normalize_command_name(command.name) == canonical_name;
}

bool remove_every_match(std::vector<HeaderCommand>& commands, std::string_view canonical_name) {
  // Comparing names can run out of memory and moving commands cannot: all comparisons come first,
  // so that a failure leaves the commands where they were.
  std::vector<bool> is_match;
  is_match.reserve(commands.size());
  for (const HeaderCommand& command : commands) {
    is_match.push_back(has_canonical_name(command, canonical_name));
  }
  std::size_t kept = 0;
  for (std::size_t i = 0; i < commands.size(); ++i) {
    if (is_match[i]) continue;
    if (kept != i) commands[kept] = std::move(commands[i]);
    ++kept;
  }
  const bool removed = kept != commands.size();
  commands.erase(commands.begin() + static_cast<std::ptrdiff_t>(kept), commands.end());
  return removed;
}

}  // namespace

std::string normalize_command_name(std::string_view name) {
  std::string canonical = text::trim(name);
  if (!canonical.empty() && canonical.front() == '#') {
    canonical = text::trim(std::string_view(canonical).substr(1));
  }
  return text::to_lower_copy(canonical);
}

std::optional<std::uint64_t> find_parameter_index(const HeaderCommand& command,
                                                  std::string_view name) {
  const std::string key = normalize_parameter_name(name);
  for (std::size_t i = 0; i < command.parameters.size(); ++i) {
    if (normalize_parameter_name(command.parameters[i].name) == key) return i;
  }
  return std::nullopt;
}

const HeaderCommand* QuillInput::find_command(std::string_view name,
                                              std::uint64_t occurrence) const {
  const std::string canonical_name = normalize_command_name(name);
  std::uint64_t matches = 0;
  for (const HeaderCommand& command : commands) {
    if (!has_canonical_name(command, canonical_name)) continue;
    if (matches == occurrence) return &command;
    ++matches;
  }
  return nullptr;
}

HeaderCommand* QuillInput::find_command(std::string_view name, std::uint64_t occurrence) {
  // The command belongs to this document, which is not const here.
  return const_cast<HeaderCommand*>(std::as_const(*this).find_command(name, occurrence));
}

bool QuillInput::has_command(std::string_view name) const {
  return find_command(name, 0) != nullptr;
}

bool QuillInput::has_task_command() const {
  return std::any_of(task_names.begin(), task_names.end(),
                     [this](std::string_view task) { return find_command(task, 0) != nullptr; });
}

std::vector<std::string> QuillInput::command_names() const {
  std::vector<std::string> names;
  names.reserve(commands.size());
  for (const HeaderCommand& command : commands) names.push_back(command.name);
  return names;
}

HeaderCommand& QuillInput::upsert_command(std::string name) {
  if (HeaderCommand* command = find_command(name, 0)) return *command;
  return commands.emplace_back(std::move(name));
}

bool QuillInput::remove_command(std::string_view name, std::optional<std::uint64_t> occurrence) {
  if (!occurrence) return remove_every_match(commands, normalize_command_name(name));
  const HeaderCommand* match = find_command(name, *occurrence);
  if (match == nullptr) return false;
  commands.erase(commands.begin() + (match - commands.data()));
  return true;
}

}  // namespace kelp::input::quill
