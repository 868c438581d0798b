#include "quill-inp/command_line/arguments.hpp"

#include <cstddef>
#include <map>
#include <string_view>

#include <CLI/App.hpp>

namespace kelp::input::quill::tool {

namespace {

constexpr char mark = '\0';

/// An option with a value attached, whatever the value: an empty one is the hardest to see.
bool has_attached_value(std::string_view argument) {
  return argument.substr(0, 2) == "--" && argument.find('=') != std::string_view::npos;
}

bool needs_mark(std::string_view argument) {
  return has_attached_value(argument) || argument.substr(0, 1) == "[" || argument == "++";
}

CLI::Option& add_option(CLI::App& app, const std::string& names, const std::string& help) {
  // Without a place to convert its values to, an option keeps them as they are.
  return *app.add_option(names, CLI::callback_t(), help)->type_size(1)->expected(1);
}

CLI::Option& add_option(CLI::App& app, const std::string& names, const std::string& placeholder,
                        const std::string& help) {
  return *add_option(app, names, help).option_text(placeholder);
}

/// Any number of values, one use after another.
CLI::Option& take_all(CLI::Option& option) {
  return *option.expected(CLI::detail::expected_max_vector_size)
              ->multi_option_policy(CLI::MultiOptionPolicy::TakeAll);
}

const CLI::Option* find_given(const CLI::App& app, const std::string& name) {
  const CLI::Option* option = app.get_option_no_throw(name);
  return option != nullptr && option->count() > 0 ? option : nullptr;
}

}  // namespace

std::vector<std::string> marked_arguments(const std::vector<std::string>& arguments) {
  std::vector<std::string> marked = arguments;
  for (std::string& argument : marked) {
    if (needs_mark(argument)) argument += mark;
  }
  return marked;
}

std::string unmarked(std::string argument) {
  if (!argument.empty() && argument.back() == mark) argument.pop_back();
  return argument;
}

void add_argument(CLI::App& app, const std::string& name, const std::string& help) {
  add_option(app, name, help).required();
}

void add_arguments(CLI::App& app, const std::string& name, const std::string& help) {
  take_all(add_option(app, name, help)).required();
}

void add_optional_arguments(CLI::App& app, const std::string& name, const std::string& help) {
  take_all(add_option(app, name, help));
}

void add_flag(CLI::App& app, const std::string& names, const std::string& help) {
  app.add_flag(names, help)->disable_flag_override();
}

void add_value(CLI::App& app, const std::string& names, const std::string& placeholder,
               const std::string& help) {
  add_option(app, names, placeholder, help);
}

void add_values(CLI::App& app, const std::string& names, const std::string& placeholder,
                const std::string& help) {
  take_all(add_option(app, names, placeholder + "...", help));
}

void add_repeated(CLI::App& app, const std::string& names, const std::string& placeholder,
                  const std::string& help) {
  take_all(add_option(app, names, placeholder, help)).allow_extra_args(false);
}

void add_attached_value(CLI::App& app, const std::string& name, const std::string& placeholder,
                        const std::string& help) {
  app.add_flag(name, help)->option_text("[=" + placeholder + "]");
}

void begin_group(CLI::App& app, const std::string& heading) {
  app.option_defaults()->group(heading);
}

bool is_given(const CLI::App& app, const std::string& name) {
  return find_given(app, name) != nullptr;
}

std::optional<std::string> value_of(const CLI::App& app, const std::string& name) {
  const CLI::Option* option = find_given(app, name);
  return option == nullptr ? std::nullopt : std::optional(unmarked(option->results().back()));
}

std::vector<std::string> values_of(const CLI::App& app, const std::string& name) {
  std::vector<std::string> values;
  if (const CLI::Option* option = find_given(app, name)) {
    for (const std::string& result : option->results()) values.push_back(unmarked(result));
  }
  return values;
}

std::optional<std::string> attached_value_of(const CLI::App& app, const std::string& name,
                                             const std::string& otherwise) {
  const CLI::Option* option = find_given(app, name);
  if (option == nullptr) return std::nullopt;
  // A value that was typed bears a mark; the result of the bare option does not.
  const std::string& result = option->results().back();
  return result.back() == mark ? unmarked(result) : otherwise;
}

std::vector<OptionUse> uses_in_order(const CLI::App& app, const std::vector<std::string>& names) {
  std::map<const CLI::Option*, std::string> wanted;
  for (const std::string& name : names) wanted.emplace(app.get_option(name), name);
  std::map<const CLI::Option*, std::size_t> seen;
  std::vector<OptionUse> uses;
  for (const CLI::Option* option : app.parse_order()) {
    if (const auto entry = wanted.find(option); entry != wanted.end())
      uses.push_back({entry->second, unmarked(option->results()[seen[option]++])});
  }
  return uses;
}

}  // namespace kelp::input::quill::tool
