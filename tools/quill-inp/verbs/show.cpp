#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "kelp/input/quill/lossless/wording.hpp"
#include "quill-inp/command_line/arguments.hpp"
#include "quill-inp/command_line/common_options.hpp"
#include "quill-inp/command_line/file_options.hpp"
#include "quill-inp/command_line/reading_options.hpp"
#include "quill-inp/process/terminal.hpp"
#include "quill-inp/process/trouble.hpp"
#include "quill-inp/session/input_source.hpp"
#include "quill-inp/summary/summary.hpp"
#include "quill-inp/text/colors.hpp"
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

std::string padding(const std::string& text, std::size_t width) {
  return std::string(width - std::min(width, text.size()), ' ');
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

/// Returns every line: its number, what the reader made of it, and the line itself. A line that the
/// reader dropped has the colour of warnings.
std::string lines_text(const lossless::ReadText& read, bool is_colored) {
  const std::size_t number_width = std::to_string(read.lines.size()).size();
  std::size_t width = 0;
  const std::vector<std::string> descriptions = describe_all(read, width);
  std::string text;
  for (std::size_t i = 0; i < read.lines.size(); ++i) {
    const std::string content = shown_on_one_line(lossless::content_of(read.lines[i], read.text));
    const std::string number = std::to_string(i + 1);
    const bool is_dropped = read.lines[i].role == LineRole::Dropped;
    text += padding(number, number_width) + colored(number, label_color, is_colored) + "  ";
    text += colored(descriptions[i], warning_color, is_colored && is_dropped);
    if (!content.empty()) text += padding(descriptions[i], width) + "  " + content;
    text += '\n';
  }
  return text;
}

/// In what form to show an input.
enum class Form { Text, Json, Lines };

/// Shows an input as text.
void show_to_a_person(Session& session, const ReadInput& input, Form form) {
  const ParseResult& result = input.read.result;
  const bool is_colored = wants_color(session.options().color, session.output().file());
  session.output().begin_part();
  if (form == Form::Text) {
    session.output().write_shown(
        summary_text(input.name, result, {is_colored, !session.options().is_quiet}));
    return;
  }
  const std::string name = colored(shown_on_one_line(input.name), name_color, is_colored);
  session.output().write_shown(name + "\n" + lines_text(input.read, is_colored));
  report_warnings(session.reporter(), input.name, result);
}

ExitCode show_one(Session& session, const std::string& argument, Form form, Warnings warnings) {
  const ReadInput input = read_input(session, argument);
  if (form == Form::Json) {
    write_summary_json(input.name, input.read.result,
                       [&](std::string_view piece) { session.output().write(piece); });
  } else {
    show_to_a_person(session, input, form);
  }
  return code_of(input.read.result, warnings);
}

ExitCode show(Session& session, const CLI::App& app) {
  if (is_given(app, as_json) && is_given(app, as_lines))
    throw UsageError("--json and --lines cannot be used together");
  const Form form = is_given(app, as_json)    ? Form::Json
                    : is_given(app, as_lines) ? Form::Lines
                                              : Form::Text;
  const Warnings warnings = read_warnings_option(app);
  return for_chosen_files(session, app, values_of(app, files),
                          [&](Session& one, const std::string& argument) {
                            return show_one(one, argument, form, warnings);
                          });
}

}  // namespace

Verb add_show(CLI::App& program) {
  CLI::App* app = add_verb(program, "show", "Summarise inputs", example);
  add_files(*app, files);
  add_flag(*app, as_json);
  add_flag(*app, as_lines);
  add_reading_options(*app);
  add_file_options(*app);
  add_common_options(*app);
  return {app, show};
}

}  // namespace kelp::input::quill::tool
