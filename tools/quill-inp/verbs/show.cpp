#include <string>
#include <string_view>
#include <vector>

#include "quill-inp/command_line/arguments.hpp"
#include "quill-inp/command_line/common_options.hpp"
#include "quill-inp/command_line/file_options.hpp"
#include "quill-inp/command_line/reading_options.hpp"
#include "quill-inp/process/terminal.hpp"
#include "quill-inp/process/trouble.hpp"
#include "quill-inp/session/input_source.hpp"
#include "quill-inp/summary/lines_text.hpp"
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

/// In what form to show an input.
enum class Form { Text, Json, Lines };

ExitCode show_lines(Session& session, const std::string& argument, Warnings warnings) {
  const ReadInput input = read_input(session, argument);
  Output& out = session.output();
  const bool is_colored = wants_color(session.options().color, out.file());
  out.begin_part();
  out.write_shown(colored(shown_on_one_line(input.name), name_color, is_colored) + "\n");
  write_lines_text(input.read, is_colored, [&](std::string_view piece) { out.write_shown(piece); });
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
