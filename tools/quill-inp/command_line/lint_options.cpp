#include "quill-inp/command_line/lint_options.hpp"

#include <algorithm>
#include <cstddef>
#include <iterator>

#include "quill-inp/process/trouble.hpp"
#include "quill-inp/text/suggestion.hpp"

namespace kelp::input::quill::tool {

namespace {

constexpr Option format{"--format", "FORM", "Print text, json, github or sarif (default text)"};
constexpr Option fail_on{"--fail-on", "SEVERITY",
                         "Exit code 1 from error, warning or info on, or never (default warning)"};
constexpr Option select{"--select", "NAMES", "Only these codes and groups, separated by commas"};
constexpr Option ignore{"--ignore", "NAMES", "All but these codes and groups"};
constexpr Option statistics{"--statistics", "", "Print how often each code was found"};

constexpr const char* form_names[] = {"text", "json", "github", "sarif"};

FindingForm parse_form(const std::string& name) {
  const char* const* const place = std::find(std::begin(form_names), std::end(form_names), name);
  if (place != std::end(form_names))
    return static_cast<FindingForm>(place - std::begin(form_names));
  throw UsageError("--format takes text, json, github or sarif, not '" + name + "'" +
                   suggestion(name, {std::begin(form_names), std::end(form_names)}));
}

FailOn parse_fail_on(const std::string& name) {
  if (const auto severity = find_fail_on(name)) return *severity;
  throw UsageError("--fail-on takes error, warning, info or never, not '" + name + "'" +
                   suggestion(name, fail_on_names()));
}

/// Splits the values of an option at their commas.
std::vector<std::string> parse_names(const CLI::App& verb, const Option& option) {
  std::vector<std::string> names;
  for (const std::string& value : values_of(verb, option)) {
    for (std::size_t start = 0; start <= value.size();) {
      const std::size_t end = std::min(value.find(',', start), value.size());
      const std::string name = value.substr(start, end - start);
      if (!lint::is_rule_or_group(name))
        throw UsageError(name_of(option) + " takes codes and groups, and '" + name +
                         "' is neither" + suggestion(name, lint::rule_and_group_names()));
      names.push_back(name);
      start = end + 1;
    }
  }
  return names;
}

}  // namespace

void add_lint_options(CLI::App& verb) {
  add_value(verb, format);
  add_value(verb, fail_on);
  add_repeated(verb, select);
  add_repeated(verb, ignore);
  add_flag(verb, statistics);
}

LintOptions read_lint_options(const CLI::App& verb) {
  LintOptions options;
  if (const auto name = value_of(verb, format)) options.form = parse_form(*name);
  if (const auto name = value_of(verb, fail_on)) options.fail_on = parse_fail_on(*name);
  options.selection = {parse_names(verb, select), parse_names(verb, ignore)};
  options.tells_statistics = is_given(verb, statistics);
  if (options.tells_statistics && options.form != FindingForm::Text)
    throw UsageError("--statistics is for --format=text");
  return options;
}

}  // namespace kelp::input::quill::tool
