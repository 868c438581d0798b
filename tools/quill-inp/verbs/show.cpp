#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "kelp/input/quill/lossless/wording.hpp"
#include "quill-inp/command_line/arguments.hpp"
#include "quill-inp/command_line/common_options.hpp"
#include "quill-inp/command_line/file_options.hpp"
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

constexpr Option files{"FILE", "", "The inputs"};
constexpr Option as_json{"--json", "", "Print the summaries as JSON, one line per file"};
constexpr Option as_lines{"--lines", "", "Print what the reader made of every line"};

std::string padded_left(const std::string& text, std::size_t width) {
  return std::string(width - std::min(width, text.size()), ' ') + text;
}

std::string padded_right(const std::string& text, std::size_t width) {
  return text + std::string(width - std::min(width, text.size()), ' ');
}

/// Returns what the reader made of each line, and how long the longest of these texts is.
std::vector<std::string> describe_all(const lossless::ReadText& read, std::size_t& width) {
  std::vector<std::string> descriptions;
  descriptions.reserve(read.lines.size());
  for (const LineRecord& line : read.lines) {
    descriptions.push_back(lossless::describe({line.role, line.index}, read.result.input));
    width = std::max(width, descriptions.back().size());
  }
  return descriptions;
}

/// Returns every line: its number, what the reader made of it, and the line itself.
std::string lines_text(const lossless::ReadText& read) {
  const std::size_t number_width = std::to_string(read.lines.size()).size();
  std::size_t width = 0;
  const std::vector<std::string> descriptions = describe_all(read, width);
  std::string text;
  for (std::size_t i = 0; i < read.lines.size(); ++i) {
    const std::string content = shown_on_one_line(lossless::content_of(read.lines[i], read.text));
    text += padded_left(std::to_string(i + 1), number_width) + "  ";
    text +=
        content.empty() ? descriptions[i] : padded_right(descriptions[i], width) + "  " + content;
    text += '\n';
  }
  return text;
}

/// In what form to show an input.
enum class Form { Text, Json, Lines };

ExitCode show_one(Session& session, const std::string& argument, Form form) {
  const ReadInput input = read_input(session, argument);
  const ParseResult& result = input.read.result;
  if (form == Form::Json) {
    write_summary_json(input.name, result,
                       [&](std::string_view piece) { session.output().write(piece); });
    return ExitCode::Done;
  }
  session.output().begin_part();
  if (form == Form::Text) {
    session.output().write_shown(summary_text(input.name, result));
  } else {
    session.output().write_shown(shown_on_one_line(input.name) + "\n" + lines_text(input.read));
    report_warnings(session.reporter(), input.name, result);
  }
  return ExitCode::Done;
}

ExitCode show(Session& session, const CLI::App& app) {
  if (is_given(app, as_json) && is_given(app, as_lines))
    throw UsageError("--json and --lines cannot be used together");
  const Form form = is_given(app, as_json)    ? Form::Json
                    : is_given(app, as_lines) ? Form::Lines
                                              : Form::Text;
  return for_chosen_files(
      session, app, values_of(app, files),
      [&](Session& one, const std::string& argument) { return show_one(one, argument, form); });
}

}  // namespace

Verb add_show(CLI::App& program) {
  CLI::App* app = add_verb(program, "show", "Summarise inputs", example);
  add_files(*app, files);
  add_flag(*app, as_json);
  add_flag(*app, as_lines);
  add_file_options(*app);
  add_common_options(*app);
  return {app, show};
}

}  // namespace kelp::input::quill::tool
