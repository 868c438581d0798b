#include "quill-inp/command_line/setting_options.hpp"

#include <filesystem>
#include <string>
#include <system_error>

#include "model/task_names.hpp"
#include "quill-inp/command_line/arguments.hpp"
#include "quill-inp/command_line/file_options.hpp"
#include "quill-inp/process/trouble.hpp"

namespace kelp::input::quill::tool {

namespace {

constexpr Option file{"FILE", "", "The inputs"};
constexpr Option settings_argument{"KEY=VALUE", "",
                                   "What to set; either all of it is set or nothing"};
constexpr Option flag{"--flag", "KEY", "Set a command or parameter without a value"};

constexpr Option replace_task{"--replace-task", "OLD=NEW",
                              "Give a task another name; its parameters stay"};
constexpr Option existing{"--existing", "", "Only set what already exists; exit code 1 otherwise"};

/// Reads "sp=opt". The new name is checked as that of a new task is.
Setting read_replacement(const std::string& text) {
  Setting setting = parse_setting(text);
  const auto* key = std::get_if<CommandKey>(&setting.key);
  const std::string name = stored_command_name(setting.value.value_or(""));
  const bool is_task = key != nullptr && !key->parameter &&
                       (key->position || is_task_name(normalize_command_name(key->command)));
  if (!is_task || is_nameless(name))
    throw UsageError("--replace-task takes two names of tasks, such as 'sp=opt', not '" + text +
                     "'");
  setting.value.reset();
  setting.new_name = name;
  return setting;
}

/// A word that does not name an existing file is probably a setting whose "=" was forgotten.
const std::string& require_file(const std::string& word) {
  std::error_code ignored;
  if (word == "-" || std::filesystem::exists(word, ignored)) return word;
  throw UsageError("expected KEY=VALUE or a file, not '" + word +
                   "'; use --flag KEY for a setting without a value");
}

Setting read_flag(const std::string& key) {
  if (has_value(key)) throw UsageError("--flag takes a KEY without a value, not '" + key + "'");
  return parse_setting(key);
}

}  // namespace

void add_setting_options(CLI::App& verb) {
  add_first_file(verb, file);
  add_optional_arguments(verb, settings_argument);
  add_repeated(verb, flag);
  add_repeated(verb, replace_task);
  add_flag(verb, existing);
}

FilesAndSettings read_files_and_settings(const CLI::App& verb) {
  const bool needs_file = !has_other_files(verb);
  FilesAndSettings result;
  for (const OptionUse& use : uses_in_order(verb, {file, settings_argument, flag, replace_task})) {
    const bool is_first = use.name == name_of(file);
    if (use.name == name_of(replace_task)) {
      result.settings.push_back(read_replacement(use.value));
    } else if (use.name == name_of(flag)) {
      result.settings.push_back(read_flag(use.value));
    } else if (has_value(use.value) && !(is_first && needs_file)) {
      result.settings.push_back(parse_setting(use.value));
    } else {
      result.files.push_back(is_first ? use.value : require_file(use.value));
    }
  }
  return result;
}

bool sets_only_existing(const CLI::App& verb) { return is_given(verb, existing); }

}  // namespace kelp::input::quill::tool
