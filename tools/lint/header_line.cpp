#include "lint/header_line.hpp"

#include <algorithm>
#include <array>
#include <cstddef>
#include <vector>

#include "lint/tokens.hpp"
#include "model/task_names.hpp"
#include "quill-inp/text/suggestion.hpp"

namespace kelp::input::quill::lint {

namespace {

constexpr std::array<std::string_view, 2> names_of_settings = {"model", "device"};

/// The names that have a meaning in every input, in canonical form.
constexpr auto common_names = [] {
  std::array<std::string_view, task_names.size() + names_of_settings.size()> names = {};
  std::size_t count = 0;
  for (const std::string_view name : task_names) names[count++] = name;
  for (const std::string_view name : names_of_settings) names[count++] = name;
  return names;
}();

}  // namespace

Entries::Entries(const HeaderPieces& pieces)
    : entries_(pieces.list), is_blank_(trimmed_view(pieces.list).empty()) {}

std::optional<ParameterPieces> Entries::next() {
  if (is_blank_ || entries_.at_end()) return std::nullopt;
  ParameterPieces entry = entries_.next();
  entry.name = trimmed_view(entry.name);
  if (entry.value) entry.value = trimmed_view(*entry.value);
  return entry;
}

Range range_of_command(const Source& source, std::size_t index) {
  return source.range_of(source.trimmed(source.command_lines()[index]));
}

std::vector<std::string> known_names(const Options& options) {
  std::vector<std::string> names(common_names.begin(), common_names.end());
  names.insert(names.end(), options.known_commands.begin(), options.known_commands.end());
  return names;
}

bool is_known(std::string_view name, const Options& options) {
  const std::string wanted = normalize_command_name(name);
  const std::vector<std::string>& more = options.known_commands;
  return std::find(common_names.begin(), common_names.end(), wanted) != common_names.end() ||
         std::any_of(more.begin(), more.end(), [&](const std::string& known) {
           return normalize_command_name(known) == wanted;
         });
}

std::string_view first_word(std::string_view name) {
  const std::vector<std::string_view> words = tokens_of(name);
  return words.empty() ? name : words.front();
}

std::optional<std::string> meant_name(std::string_view name, const Options& options) {
  if (name.empty() || is_known(name, options)) return std::nullopt;
  return tool::nearest_name(normalize_command_name(name), known_names(options));
}

}  // namespace kelp::input::quill::lint
