#include "lint/header_line.hpp"

#include <algorithm>

#include "lint/tokens.hpp"
#include "model/task_names.hpp"
#include "quill-inp/text/suggestion.hpp"

namespace kelp::input::quill::lint {

HeaderPieces pieces_of(const Source& source, std::size_t index) {
  HeaderPieces pieces = find_header_pieces(source.content(source.command_lines()[index]));
  pieces.name = trimmed_view(pieces.name);
  pieces.value = trimmed_view(pieces.value);
  pieces.trailing = trimmed_view(pieces.trailing);
  return pieces;
}

std::vector<ParameterPieces> entries_of(const HeaderPieces& pieces) {
  std::vector<ParameterPieces> entries;
  if (trimmed_view(pieces.list).empty()) return entries;
  for (ParameterEntries all(pieces.list); !all.at_end();) {
    ParameterPieces entry = all.next();
    entry.name = trimmed_view(entry.name);
    if (entry.value) entry.value = trimmed_view(*entry.value);
    entries.push_back(entry);
  }
  return entries;
}

Range range_of_command(const Source& source, std::size_t index) {
  return source.range_of(source.trimmed(source.command_lines()[index]));
}

std::vector<std::string> known_names(const Options& options) {
  std::vector<std::string> names(task_names.begin(), task_names.end());
  names.insert(names.end(), {"model", "device"});
  names.insert(names.end(), options.known_commands.begin(), options.known_commands.end());
  return names;
}

bool is_known(std::string_view name, const Options& options) {
  const std::string wanted = normalize_command_name(name);
  const std::vector<std::string> names = known_names(options);
  return std::any_of(names.begin(), names.end(), [&](const std::string& known) {
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
