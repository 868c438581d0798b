#include "quill-inp/command_line/help_formatter.hpp"

#include <cstddef>
#include <utility>

namespace kelp::input::quill::tool {

namespace {

constexpr std::size_t width_of_names = 26;

bool is_in(const CLI::Option* option, const std::string& group) {
  return option->get_group() == group && option->nonpositional();
}

bool takes_several(const CLI::Option* option) {
  return option->get_expected_max() > 1 && option->get_positional();
}

}  // namespace

HelpFormatter::HelpFormatter() {
  column_width(width_of_names);
  label("Positionals", "Arguments");
}

std::string HelpFormatter::make_help(const CLI::App* app, std::string name,
                                     CLI::AppFormatMode mode) const {
  std::string text = app->get_description() + "\n" + make_usage(app, std::move(name));
  text += make_positionals(app);
  for (const std::string& group : app->get_groups()) {
    const auto options =
        app->get_options([&](const CLI::Option* option) { return is_in(option, group); });
    if (!options.empty()) text += make_group(group, false, options);
  }
  return text + make_subcommands(app, mode) + "\n" + app->get_footer() + "\n";
}

std::string HelpFormatter::make_usage(const CLI::App* app, std::string name) const {
  std::string usage = "\nUsage: " + name;
  const bool has_verbs = !app->get_subcommands({}).empty();
  usage += has_verbs ? " VERB [OPTION...]" : " [OPTION...]";
  for (const CLI::Option* option :
       app->get_options([](const CLI::Option* any) { return any->get_positional(); }))
    usage += " " + make_option_usage(option);
  return usage + "\n";
}

std::string HelpFormatter::make_group(std::string group, bool is_positional,
                                      std::vector<const CLI::Option*> options) const {
  std::string text = "\n" + group + ":\n";
  for (const CLI::Option* option : options) text += make_option(option, is_positional);
  return text;
}

std::string HelpFormatter::make_option_opts(const CLI::Option* option) const {
  const std::string& text = option->get_option_text();
  if (option->get_positional() || text.empty()) return {};
  const bool is_attached = text.front() == '[';
  return is_attached ? text : " " + text;
}

std::string HelpFormatter::make_option_usage(const CLI::Option* option) const {
  const std::string& mark = option->get_option_text();
  const std::string usage = make_option_name(option, true) + (takes_several(option) ? "..." : mark);
  return option->get_required() || !mark.empty() ? usage : "[" + usage + "]";
}

}  // namespace kelp::input::quill::tool
