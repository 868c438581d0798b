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

std::string describe(const LineRecord& line, const QuillInput& input) {
  return lossless::describe({line.role, line.index}, input);
}

/// Returns how long the longest description of a line is.
std::size_t description_width(const lossless::ReadText& read) {
  std::size_t width = 0;
  for (const LineRecord& line : read.lines)
    width = std::max(width, describe(line, read.result.input).size());
  return width;
}

/// Writes every line: its number, what the reader made of it, and the line itself. A line that the
/// reader dropped has the colour of warnings.
void write_lines(const lossless::ReadText& read, bool is_colored, Output& out) {
  const std::size_t number_width = std::to_string(read.lines.size()).size();
  const std::size_t width = description_width(read);
  for (std::size_t i = 0; i < read.lines.size(); ++i) {
    const LineRecord& line = read.lines[i];
    const std::string content = shown_on_one_line(lossless::content_of(line, read.text));
    const std::string number = std::to_string(i + 1);
    const std::string description = describe(line, read.result.input);
    const bool is_dropped = line.role == LineRole::Dropped;
    std::string text =
        padding(number, number_width) + colored(number, label_color, is_colored) + "  ";
    text += colored(description, warning_color, is_colored && is_dropped);
    if (!content.empty()) text += padding(description, width) + "  ";
    out.write_shown(text);
    out.write_shown(content);
    out.write_shown("\n");
  }
}

/// In what form to show an input.
enum class Form { Text, Json, Lines };

ExitCode show_lines(Session& session, const std::string& argument, Warnings warnings) {
  const ReadInput input = read_input(session, argument);
  Output& out = session.output();
  const bool is_colored = wants_color(session.options().color, out.file());
  out.begin_part();
  out.write_shown(colored(shown_on_one_line(input.name), name_color, is_colored) + "\n");
  write_lines(input.read, is_colored, out);
  report_warnings(session.reporter(), input.name, input.read.result);
  return code_of(input.read.result, warnings);
}

ExitCode show_one(Session& session, const std::string& argument, Form form, Warnings warnings) {
  if (form == Form::Lines) return show_lines(session, argument, warnings);
  const ReadDocument input = read_document(session, argument);
  Output& out = session.output();
  if (form == Form::Json) {
    write_summary_json(input.name, input.result, [&](std::string_view piece) { out.write(piece); });
  } else {
    out.begin_part();
    const bool is_colored = wants_color(session.options().color, out.file());
    write_summary_text(input.name, input.result, {is_colored, !session.options().is_quiet},
                       [&](std::string_view piece) { out.write_shown(piece); });
  }
  return code_of(input.result, warnings);
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
