#include <algorithm>
#include <cstddef>
#include <string>
#include <vector>

#include "edit_support/line_account.hpp"
#include "quill-inp/command_line/arguments.hpp"
#include "quill-inp/process/trouble.hpp"
#include "quill-inp/session/input_source.hpp"
#include "quill-inp/summary/summary.hpp"
#include "quill-inp/text/terminal_text.hpp"
#include "quill-inp/verbs/verb.hpp"

namespace kelp::input::quill::tool {

namespace {

constexpr const char* example =
    "Example:\n"
    "  quill-inp show water.qin\n"
    "  quill-inp show --json *.qin";

std::string padded_left(const std::string& text, std::size_t width) {
  return std::string(width - std::min(width, text.size()), ' ') + text;
}

std::string padded_right(const std::string& text, std::size_t width) {
  return text + std::string(width - std::min(width, text.size()), ' ');
}

/// Returns what the reader made of each line, and how long the longest of these texts is.
std::vector<std::string> describe_all(const std::vector<edit_support::AccountedLine>& account,
                                      const QuillInput& input, std::size_t& width) {
  std::vector<std::string> descriptions;
  for (const edit_support::AccountedLine& line : account) {
    descriptions.push_back(edit_support::describe(line, input));
    width = std::max(width, descriptions.back().size());
  }
  return descriptions;
}

/// Returns the account of every line: its number, what the reader made of it, and the line itself.
std::string account_text(const InputSource& source, const ParseResult& result) {
  const auto account = edit_support::account_for_lines(source.content, result);
  const std::size_t number_width = std::to_string(account.size()).size();
  std::size_t width = 0;
  const std::vector<std::string> descriptions = describe_all(account, result.input, width);
  std::string text;
  for (std::size_t i = 0; i < account.size(); ++i) {
    const std::string content = shown_on_one_line(account[i].content(source.content));
    text += padded_left(std::to_string(account[i].number), number_width) + "  ";
    text +=
        content.empty() ? descriptions[i] : padded_right(descriptions[i], width) + "  " + content;
    text += '\n';
  }
  return text;
}

/// In what form to show an input.
enum class Form { Text, Json, Lines };

/// Shows one file after another, with an empty line between texts.
class Show {
 public:
  Show(Session& session, Form form) : session_(session), form_(form) {}

  ExitCode operator()(const std::string& argument) {
    const InputSource source = read_input(session_, argument);
    const ParseResult result = parse_string(source.content);
    if (form_ == Form::Json) {
      session_.output().write(summary_json(source.name, result));
      return ExitCode::Done;
    }
    session_.output().write_shown(separator_);
    separator_ = "\n";
    if (form_ == Form::Text) {
      session_.output().write_shown(summary_text(source.name, result));
    } else {
      session_.output().write_shown(shown_on_one_line(source.name) + "\n" +
                                    account_text(source, result));
      report_warnings(session_.reporter(), source.name, result);
    }
    return ExitCode::Done;
  }

 private:
  Session& session_;
  Form form_;
  const char* separator_ = "";
};

}  // namespace

Verb add_show(CLI::App& program) {
  CLI::App* app = add_verb(program, "show", "Summarise inputs", example);
  add_arguments(*app, "FILE", "The inputs");
  add_flag(*app, "--json", "Print the summaries as JSON, one line per file");
  add_flag(*app, "--lines", "Print what the reader made of every line");
  add_common_options(*app);
  return {app, [=](Session& session) {
            if (is_given(*app, "--json") && is_given(*app, "--lines"))
              throw UsageError("--json and --lines exclude each other");
            const Form form = is_given(*app, "--json")    ? Form::Json
                              : is_given(*app, "--lines") ? Form::Lines
                                                          : Form::Text;
            Show show(session, form);
            return for_each_file(session, values_of(*app, "FILE"), show);
          }};
}

}  // namespace kelp::input::quill::tool
