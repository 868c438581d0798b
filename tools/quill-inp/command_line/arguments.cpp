#include "quill-inp/command_line/arguments.hpp"

#include <algorithm>
#include <cstddef>
#include <map>
#include <stdexcept>
#include <string_view>

#include <CLI/App.hpp>

#include "quill-inp/process/trouble.hpp"

namespace kelp::input::quill::tool {

namespace {

constexpr char mark = '\0';

// Marks, in the help, an argument that is required, but can also be given in another way.
constexpr const char* several_files = "...";

/// Whether the argument is an option with its value, even if that is empty: "--raw=".
bool has_attached_value(std::string_view argument) {
  return argument.substr(0, 2) == "--" && argument.find('=') != std::string_view::npos;
}

/// Whether CLI11 would give the argument a special meaning.
bool needs_mark(std::string_view argument) {
  return argument.substr(0, 1) == "[" || argument == "++";
}

bool is_digit(char c) { return '0' <= c && c <= '9'; }

/// Whether a word looks like an option. "-" is standard input, and "-1" and "-.5" are numbers.
bool looks_like_option(std::string_view word) {
  if (word.size() < 2 || word[0] != '-') return false;
  return !is_digit(word[1]) && !(word[1] == '.' && word.size() > 2 && is_digit(word[2]));
}

std::string describe_forgotten_value(const std::string& name, const std::string& value) {
  return name + " needs a value; write '" + name + "=" + value + "' if '" + value +
         "' is the value";
}

CLI::Option& add(CLI::App& app, const Option& option) {
  // An option without a variable for its values keeps them unchanged. All of them are kept, so that
  // the message about a second one is written here.
  return *app.add_option(option.names, CLI::callback_t(), option.help)
              ->type_size(1)
              ->expected(1)
              ->multi_option_policy(CLI::MultiOptionPolicy::TakeAll);
}

/// Lets an option have any number of values.
CLI::Option& take_all(CLI::Option& option) {
  return *option.expected(CLI::detail::expected_max_vector_size);
}

/// CLI11's own search is declared to throw nothing, and so ends the program when memory runs out.
const CLI::Option& find(const CLI::App& app, const Option& option) {
  const std::string name = name_of(option);
  for (const CLI::Option* candidate : app.get_options()) {
    if (candidate->check_name(name)) return *candidate;
  }
  throw std::logic_error("the verb '" + app.get_name() + "' has no option " + name);
}

const std::vector<std::string>& results_of(const CLI::App& app, const Option& option) {
  const CLI::Option& found = find(app, option);
  const std::vector<std::string>& results = found.results();
  if (found.get_items_expected_max() == 1 && results.size() > 1)
    throw UsageError(name_of(option) + " can be given only once");
  return results;
}

bool is_marked(std::string_view argument) { return argument.find(mark) != std::string_view::npos; }

}  // namespace

std::string name_of(const Option& option) {
  const std::string_view names = option.names;
  return std::string(names.substr(names.rfind(',') + 1));
}

std::vector<std::string> marked_arguments(const std::vector<std::string>& arguments) {
  std::vector<std::string> marked = arguments;
  for (std::string& argument : marked) {
    if (has_attached_value(argument)) {
      argument.insert(argument.find('=') + 1, 1, mark);
    } else if (needs_mark(argument)) {
      argument += mark;
    }
  }
  return marked;
}

std::string unmarked(std::string argument) {
  argument.erase(std::remove(argument.begin(), argument.end(), mark), argument.end());
  return argument;
}

void add_argument(CLI::App& app, const Option& option) { add(app, option).required(); }

void add_files(CLI::App& app, const Option& option) {
  take_all(add(app, option)).option_text(several_files);
}

void add_first_file(CLI::App& app, const Option& option) {
  add(app, option).option_text(several_files);
}

void add_arguments(CLI::App& app, const Option& option) { take_all(add(app, option)).required(); }

void add_optional_arguments(CLI::App& app, const Option& option) { take_all(add(app, option)); }

void add_flag(CLI::App& app, const Option& option) { app.add_flag(option.names, option.help); }

void add_value(CLI::App& app, const Option& option) {
  add(app, option).option_text(option.placeholder);
}

void add_values(CLI::App& app, const Option& option) {
  take_all(add(app, option)).option_text(std::string(option.placeholder) + "...");
}

void add_repeated(CLI::App& app, const Option& option) {
  take_all(add(app, option)).option_text(option.placeholder)->allow_extra_args(false);
}

void add_attached_value(CLI::App& app, const Option& option) {
  app.add_flag(option.names, option.help)
      ->option_text("[=" + std::string(option.placeholder) + "]");
}

void begin_group(CLI::App& app, const std::string& heading) {
  app.option_defaults()->group(heading);
}

std::optional<std::string> find_forgotten_value(const CLI::App& app) {
  for (const CLI::Option* option : app.get_options(&CLI::Option::nonpositional)) {
    for (const std::string& result : option->results()) {
      // The value of "--raw=--x" begins with the mark.
      if (result.substr(0, 1) == std::string(1, mark)) continue;
      const std::string value = unmarked(result);
      if (looks_like_option(value)) return describe_forgotten_value(option->get_name(), value);
    }
  }
  return std::nullopt;
}

bool is_given(const CLI::App& app, const Option& option) {
  const std::vector<std::string>& results = find(app, option).results();
  for (const std::string& result : results) {
    if (is_marked(result)) throw UsageError(name_of(option) + " takes no value");
  }
  return !results.empty();
}

std::optional<std::string> value_of(const CLI::App& app, const Option& option) {
  const std::vector<std::string>& results = results_of(app, option);
  return results.empty() ? std::nullopt : std::optional(unmarked(results.back()));
}

std::vector<std::string> values_of(const CLI::App& app, const Option& option) {
  std::vector<std::string> values;
  for (const std::string& result : results_of(app, option)) values.push_back(unmarked(result));
  return values;
}

std::optional<std::string> attached_value_of(const CLI::App& app, const Option& option,
                                             const std::string& default_value) {
  const std::vector<std::string>& results = find(app, option).results();
  if (results.empty()) return std::nullopt;
  // A value that was typed has a mark; the result of the option without a value does not.
  return is_marked(results.back()) ? unmarked(results.back()) : default_value;
}

std::vector<OptionUse> uses_in_order(const CLI::App& app, const std::vector<Option>& options) {
  std::map<const CLI::Option*, std::string> wanted;
  for (const Option& option : options) wanted.emplace(&find(app, option), name_of(option));
  std::map<const CLI::Option*, std::size_t> seen;
  std::vector<OptionUse> uses;
  for (const CLI::Option* option : app.parse_order()) {
    if (const auto entry = wanted.find(option); entry != wanted.end())
      uses.push_back({entry->second, unmarked(option->results()[seen[option]++])});
  }
  return uses;
}

}  // namespace kelp::input::quill::tool
