#include "quill-inp/command_line/setting_options.hpp"

#include <filesystem>
#include <string>
#include <system_error>

#include "quill-inp/command_line/arguments.hpp"
#include "quill-inp/process/trouble.hpp"

namespace kelp::input::quill::tool {

namespace {

constexpr Option settings_argument{"KEY=VALUE", "",
                                   "What to set; either all of it is set or nothing"};
constexpr Option flag{"--flag", "KEY", "Set a command or parameter without a value"};

std::string explain_bare_word(const std::string& word) {
  std::string text =
      "expected KEY=VALUE, not '" + word + "'; use --flag KEY for a setting without a value";
  std::error_code ignored;
  if (std::filesystem::exists(word, ignored))
    text += "; there is a file with that name, but 'set' takes only one FILE";
  return text;
}

Setting read_setting(const OptionUse& use) {
  const bool is_flag = use.name == name_of(flag);
  if (is_flag && has_value(use.value))
    throw UsageError("--flag takes a KEY without a value, not '" + use.value + "'");
  if (!is_flag && !has_value(use.value)) throw UsageError(explain_bare_word(use.value));
  return parse_setting(use.value);
}

}  // namespace

void add_setting_options(CLI::App& verb) {
  add_optional_arguments(verb, settings_argument);
  add_repeated(verb, flag);
}

std::vector<Setting> read_settings(const CLI::App& verb) {
  std::vector<Setting> settings;
  for (const OptionUse& use : uses_in_order(verb, {settings_argument, flag}))
    settings.push_back(read_setting(use));
  return settings;
}

}  // namespace kelp::input::quill::tool
