#include "quill-inp/findings/project_choices.hpp"

#include <cstddef>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <system_error>

#include <toml++/toml.h>

#include "lint/selection.hpp"
#include "quill-inp/process/trouble.hpp"
#include "quill-inp/text/suggestion.hpp"

namespace kelp::input::quill::tool {

namespace {

namespace fs = std::filesystem;

const std::vector<std::string> known_keys = {"ignore", "fail-on", "known-commands", "max-change"};

[[noreturn]] void throw_at(const std::string& name, const toml::source_region& place,
                           const std::string& message) {
  throw Trouble(name + ":" + std::to_string(place.begin.line) + ": " + message);
}

/// One key of the file with its value.
struct Entry {
  const std::string& file;
  std::string key;
  const toml::node& value;

  [[noreturn]] void refuse(const std::string& message) const {
    throw_at(file, value.source(), message);
  }
};

std::vector<std::string> read_names(const Entry& entry) {
  const toml::array* array = entry.value.as_array();
  if (array == nullptr) entry.refuse("'" + entry.key + "' takes a list of texts");
  std::vector<std::string> names;
  for (const toml::node& element : *array) {
    const auto name = element.value_exact<std::string>();
    if (!name) throw_at(entry.file, element.source(), "'" + entry.key + "' takes a list of texts");
    names.push_back(*name);
  }
  return names;
}

std::vector<std::string> read_rules(const Entry& entry) {
  std::vector<std::string> names = read_names(entry);
  for (const std::string& name : names) {
    if (!lint::is_rule_or_group(name))
      entry.refuse("'" + name + "' is neither a code nor a group" +
                   suggestion(name, lint::rule_and_group_names()));
  }
  return names;
}

FailOn read_fail_on(const Entry& entry) {
  const std::string name = entry.value.value_exact<std::string>().value_or("");
  const std::optional<FailOn> fail_on = find_fail_on(name);
  if (!fail_on) entry.refuse("'fail-on' takes error, warning, info or never");
  return *fail_on;
}

double read_max_change(const Entry& entry) {
  const std::optional<double> number = entry.value.value<double>();
  if (!entry.value.is_number() || !number || !(*number >= 0.0))
    entry.refuse("'max-change' takes a number that is 0 or larger");
  return *number;
}

void read_entry(const Entry& entry, const toml::source_region& place, ProjectChoices& choices) {
  if (entry.key == "ignore") {
    choices.ignored = read_rules(entry);
  } else if (entry.key == "fail-on") {
    choices.fail_on = read_fail_on(entry);
  } else if (entry.key == "known-commands") {
    choices.known_commands = read_names(entry);
  } else if (entry.key == "max-change") {
    choices.max_change = read_max_change(entry);
  } else {
    throw_at(entry.file, place,
             "unknown key '" + entry.key + "'" + suggestion(entry.key, known_keys));
  }
}

toml::table parse(std::string_view text, const std::string& name) {
  try {
    return toml::parse(text);
  } catch (const toml::parse_error& error) {
    throw_at(name, error.source(), std::string(error.description()));
  }
}

/// Returns the path of the file in a folder or in the nearest folder above it, or the empty path.
fs::path find_file(fs::path folder) {
  for (;;) {
    std::error_code error;
    fs::path file = folder / project_file_name;
    if (fs::exists(file, error)) return file;
    const fs::path parent = folder.parent_path();
    if (parent == folder || parent.empty()) return {};
    folder = parent;
  }
}

// A pipe without a writer would never be opened.
std::string read_text(const std::string& path) {
  std::error_code error;
  if (!fs::is_regular_file(path, error)) throw Trouble("cannot read " + path);
  std::ifstream file(path, std::ios_base::binary);
  if (!file) throw Trouble("cannot read " + path);
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

std::string folder_of(const std::string& path) {
  return path == "-" ? std::string() : fs::path(path).parent_path().string();
}

std::string find_file_for_folder(const std::string& folder) {
  std::error_code error;
  // Without "..", whose parent by name would be a folder below.
  const fs::path canonical = fs::canonical(folder.empty() ? "." : folder, error);
  return error ? std::string() : find_file(canonical).string();
}

ProjectChoices choices_for_folder(const std::string& folder) {
  const std::string file = find_file_for_folder(folder);
  return file.empty() ? ProjectChoices() : read_project_file(file);
}

}  // namespace

ProjectChoices parse_project_choices(std::string_view text, const std::string& name) {
  const toml::table table = parse(text, name);
  ProjectChoices choices;
  for (const auto& [key, value] : table)
    read_entry({name, std::string(key.str()), value}, key.source(), choices);
  return choices;
}

std::string find_project_file(const std::string& path) {
  return find_file_for_folder(folder_of(path));
}

ProjectChoices read_project_file(const std::string& file) {
  return parse_project_choices(read_text(file), file);
}

const ProjectChoices& ProjectFinder::choices_for(const std::string& path) {
  const std::string folder = folder_of(path);
  const std::lock_guard<std::mutex> lock(mutex_);
  const auto known = known_.find(folder);
  if (known != known_.end()) return known->second;
  return known_.emplace(folder, choices_for_folder(folder)).first->second;
}

}  // namespace kelp::input::quill::tool
