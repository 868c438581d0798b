#include <string>
#include <vector>

#include <CLI/App.hpp>

#include "quill-inp/command_line/arguments.hpp"
#include "quill-inp/command_line/common_options.hpp"
#include "quill-inp/process/trouble.hpp"
#include "quill-inp/text/suggestion.hpp"
#include "quill-inp/verbs/verb.hpp"

namespace kelp::input::quill::tool {

namespace {

constexpr const char* example =
    "Example:\n"
    "  quill-inp help set";

constexpr Option wanted_verbs{"VERB", "", "The verbs to explain; none lists all of them"};

/// CLI::App::help() of the program would be that of the verb that is carried out.
std::string help_of_program(const CLI::App& program) {
  return program.get_formatter()->make_help(&program, program.get_name(),
                                            CLI::AppFormatMode::Normal);
}

const CLI::App& find_verb(const CLI::App& program, const std::string& name) {
  std::vector<std::string> names;
  for (const CLI::App* verb : program.get_subcommands({})) {
    if (verb->get_name() == name) return *verb;
    names.push_back(verb->get_name());
  }
  throw UsageError("unknown verb '" + name + "'" + suggestion(name, names));
}

ExitCode help(Session& session, const CLI::App& app) {
  const CLI::App& program = *app.get_parent();
  std::vector<std::string> pages;
  for (const std::string& name : values_of(app, wanted_verbs))
    pages.push_back(find_verb(program, name).help(program.get_name()));
  if (pages.empty()) pages.push_back(help_of_program(program));
  for (const std::string& page : pages) {
    session.output().begin_part();
    session.output().write_shown(page);
  }
  return ExitCode::Done;
}

}  // namespace

Verb add_help(CLI::App& program) {
  CLI::App* app = add_verb(program, "help", "Print this help, or that of a verb", example);
  add_optional_arguments(*app, wanted_verbs);
  add_common_options(*app);
  return {app, help};
}

}  // namespace kelp::input::quill::tool
