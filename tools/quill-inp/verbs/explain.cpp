#include <string>

#include "lint/pages.hpp"
#include "lint/rule.hpp"
#include "lint/selection.hpp"
#include "quill-inp/command_line/arguments.hpp"
#include "quill-inp/command_line/common_options.hpp"
#include "quill-inp/process/trouble.hpp"
#include "quill-inp/text/suggestion.hpp"
#include "quill-inp/verbs/verb.hpp"

namespace kelp::input::quill::tool {

namespace {

constexpr const char* example =
    "Example:\n"
    "  quill-inp explain QL104";

constexpr Option codes{"CODE", "", "The codes to explain; none lists all of them"};

std::string padded(std::string_view text, std::size_t width) {
  return std::string(text) + std::string(width - text.size(), ' ');
}

std::string list_of_rules() {
  constexpr std::size_t severity_width = 7;
  constexpr std::size_t group_width = 15;
  std::string text;
  for (const lint::Rule& rule : lint::all_rules())
    text += std::string(rule.code) + "  " + padded(lint::name_of(rule.severity), severity_width) +
            "  " + padded(lint::name_of(rule.group), group_width) + "  " + std::string(rule.title) +
            "\n";
  return text;
}

ExitCode explain_codes(Session& session, const CLI::App& app) {
  const std::vector<std::string> wanted = values_of(app, codes);
  for (const std::string& code : wanted) {
    if (lint::find_rule(code) == nullptr)
      throw UsageError("there is no code '" + code + "'" +
                       suggestion(code, lint::rule_and_group_names()));
  }
  if (wanted.empty()) session.output().write_shown(list_of_rules());
  for (const std::string& code : wanted) {
    session.output().begin_part();
    session.output().write_shown(lint::page_of(lint::find_rule(code)->code));
  }
  return ExitCode::Done;
}

}  // namespace

Verb add_explain(CLI::App& program) {
  CLI::App* app = add_verb(program, "explain", "Explain the codes of lint", example);
  add_optional_arguments(*app, codes);
  add_common_options(*app);
  return {app, explain_codes};
}

}  // namespace kelp::input::quill::tool
