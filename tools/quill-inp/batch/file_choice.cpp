#include "quill-inp/batch/file_choice.hpp"

#include <algorithm>
#include <cstddef>
#include <filesystem>
#include <set>
#include <string_view>
#include <system_error>
#include <utility>

#include "quill-inp/batch/folder_walk.hpp"
#include "quill-inp/process/trouble.hpp"
#include "quill-inp/session/input_source.hpp"

namespace kelp::input::quill::tool {

namespace {

constexpr const char* default_pattern = "*.qin";

/// Takes the names out of a list. An empty line, which a list made by hand may have, does not name
/// a file.
void append_listed(std::string_view list, char end, std::vector<std::string>& files) {
  while (!list.empty()) {
    const std::size_t size = std::min(list.find(end), list.size());
    if (size > 0) files.emplace_back(list.substr(0, size));
    list.remove_prefix(std::min(size + 1, list.size()));
  }
}

/// Returns nothing for a list that cannot be read, and reports that.
std::optional<std::string> read_list(Session& session, const std::string& argument) {
  try {
    return read_source(session, argument).content;
  } catch (const Trouble& trouble) {
    session.report(argument, trouble);
    return std::nullopt;
  }
}

std::string in_words(const std::vector<std::string>& patterns) {
  std::string text;
  for (const std::string& pattern : patterns)
    text += (text.empty() ? "'" : " or '") + pattern + "'";
  return text;
}

void append_folder(Session& session, const std::string& folder,
                   const std::vector<std::string>& patterns, ChosenFiles& chosen) {
  const auto report = [&](const std::string& path, int error) {
    session.reporter().error({path}, "the folder cannot be read: " + system_message(error));
    chosen.code = ExitCode::Trouble;
  };
  const std::vector<std::string> found = find_files(folder, patterns, report);
  if (found.empty() && chosen.code != ExitCode::Trouble) {
    session.reporter().note({folder}, "no file in this folder matches " + in_words(patterns));
    chosen.code = ExitCode::No;
  }
  chosen.files.insert(chosen.files.end(), found.begin(), found.end());
}

/// Keeps the first of several names that lead to the same file. Two hard links are two files: if
/// one is replaced, the other stays as it was.
void keep_each_once(std::vector<std::string>& files) {
  std::set<std::string> paths;
  const auto is_repeated = [&](const std::string& file) {
    std::error_code error;
    const std::filesystem::path path = std::filesystem::canonical(file, error);
    // The system would see only the part before the NUL.
    const bool is_a_name = file != "-" && file.find('\0') == std::string::npos;
    return is_a_name && !error && !paths.insert(path.string()).second;
  };
  std::vector<std::string> kept;
  for (std::string& file : files) {
    if (!is_repeated(file)) kept.push_back(std::move(file));
  }
  files = std::move(kept);
}

}  // namespace

ChosenFiles choose_files(Session& session, const FileChoice& choice) {
  ChosenFiles chosen;
  std::vector<std::string> names;
  if (choice.list) {
    const char end = choice.list_has_nul_ends ? '\0' : '\n';
    const std::optional<std::string> list = read_list(session, *choice.list);
    if (!list) return {{}, ExitCode::Trouble, false};
    append_listed(*list, end, names);
  }
  names.insert(names.end(), choice.arguments.begin(), choice.arguments.end());
  const std::vector<std::string> patterns =
      choice.patterns.empty() ? std::vector<std::string>{default_pattern} : choice.patterns;
  for (const std::string& name : names) {
    if (choice.is_recursive && is_folder(name)) {
      append_folder(session, name, patterns, chosen);
    } else {
      chosen.files.push_back(name);
    }
  }
  if (choice.takes_each_once) keep_each_once(chosen.files);
  chosen.is_one_by_name =
      choice.arguments.size() == 1 && !choice.is_recursive && !choice.list.has_value();
  return chosen;
}

}  // namespace kelp::input::quill::tool
