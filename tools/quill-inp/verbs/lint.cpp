#include "lint/lint.hpp"

#include <string>
#include <utility>

#include <CLI/App.hpp>

#include "lint/mending.hpp"
#include "quill-inp/batch/each_file.hpp"
#include "quill-inp/batch/name_census.hpp"
#include "quill-inp/command_line/common_options.hpp"
#include "quill-inp/command_line/file_options.hpp"
#include "quill-inp/command_line/lint_options.hpp"
#include "quill-inp/editing/delivery.hpp"
#include "quill-inp/findings/collected_reports.hpp"
#include "quill-inp/findings/github_form.hpp"
#include "quill-inp/findings/json_form.hpp"
#include "quill-inp/findings/project_choices.hpp"
#include "quill-inp/findings/referenced_files.hpp"
#include "quill-inp/findings/sarif_form.hpp"
#include "quill-inp/findings/text_form.hpp"
#include "quill-inp/process/terminal.hpp"
#include "quill-inp/process/trouble.hpp"
#include "quill-inp/session/input_source.hpp"
#include "quill-inp/text/counted.hpp"
#include "quill-inp/verbs/verb.hpp"

namespace kelp::input::quill::tool {

namespace {

constexpr const char* example =
    "Example:\n"
    "  quill-inp lint *.qin\n"
    "  quill-inp lint --fix --diff job.qin\n"
    "\n"
    "Columns count bytes from 1. 'quill-inp explain CODE' says what a code means.";

constexpr Option files{"FILE", "", "The inputs"};
constexpr Option fix{"--fix", "", "Write files in which the safe corrections are made"};
constexpr Option diff{"--diff", "", "With --fix, only print the changes; exit code 1 if any"};

constexpr lint::Severity default_fail_on = lint::Severity::Warning;

/// What a call does with every file.
struct LintCall {
  LintOptions options = {};
  bool fixes = false;
  bool shows_diff = false;
  bool is_colored = false;
  std::vector<std::string> other_names = {};  // see lint::Options
};

std::string folder_of(const std::string& argument) {
  const std::size_t slash = argument.rfind('/');
  return slash == std::string::npos ? "" : argument.substr(0, slash + 1);
}

lint::Options options_for(const Session& session, const LintCall& call,
                          const ProjectChoices& project, const std::string& argument) {
  lint::Options options;
  options.known_commands = project.known_commands;
  options.other_names = &call.other_names;
  options.max_change = project.max_change.value_or(options.max_change);
  options.read_reference = [folder = folder_of(argument),
                            limit = session.options().max_size](const std::string& path) {
    return find_referenced_file(folder, path, limit);
  };
  return options;
}

/// What the options select, without what the project ignores.
lint::Selection selection_for(const LintCall& call, const ProjectChoices& project) {
  lint::Selection selection = call.options.selection;
  selection.ignored.insert(selection.ignored.end(), project.ignored.begin(), project.ignored.end());
  return selection;
}

FailOn fail_on_for(const LintCall& call, const ProjectChoices& project) {
  if (call.options.fail_on) return *call.options.fail_on;
  return project.fail_on.value_or(default_fail_on);
}

/// Where mended texts go. A file that will be written is locked before it is read.
Delivery delivery_of_mends(const LintCall& call) {
  Delivery delivery;
  delivery.as_diff = call.fixes && call.shows_diff;
  delivery.in_place = call.fixes && !call.shows_diff;
  return delivery;
}

bool fails(const lint::Findings& findings, const FailOn& fail_on) {
  const std::optional<lint::Severity> worst = worst_severity(findings);
  return fail_on && worst && *worst >= *fail_on;
}

/// The verb, for one file after another or for several at once.
class Linter {
 public:
  explicit Linter(LintCall call) : call_(std::move(call)) {}

  ExitCode operator()(Session& session, const std::string& argument) {
    const Delivery delivery = delivery_of_mends(call_);
    ReadInput input = read_for_delivery(session, argument, delivery);
    const ProjectChoices& project = projects_.choices_for(argument);
    const lint::Options options = options_for(session, call_, project, argument);
    const lint::Selection selection = selection_for(call_, project);
    if (call_.fixes) {
      const ExitCode code = mend_file(session, input, options, selection, delivery);
      if (call_.shows_diff) return code;
    }
    FileReport report{input.name, std::move(input.read), {}};
    lint::FirstFindings first =
        lint::find_first(report.read, options, {most_of_a_rule, most_of_a_rule});
    lint::keep_selected(first, selection);
    report.findings = std::move(first.findings);
    report.more = std::move(first.more);
    print(session, report);
    const bool has_failed = fails(report.findings, fail_on_for(call_, project));
    reports_.add(argument, std::move(report), call_.options.form == FindingForm::Sarif);
    return has_failed ? ExitCode::No : ExitCode::Done;
  }

  CollectedReports& reports() { return reports_; }

 private:
  /// Mends a file in place, or shows the changes, and continues with its new text.
  ExitCode mend_file(Session& session, ReadInput& input, const lint::Options& options,
                     const lint::Selection& selection, const Delivery& delivery) const {
    const auto is_wanted = [&](const lint::Finding& finding) {
      return lint::is_selected(finding.code, selection);
    };
    std::string old_text = input.read.text;
    lint::MendedText mended = lint::mend(std::move(input.read), options, is_wanted);
    input.read = {std::move(old_text), {}, {}};
    const bool is_mended = mended.count > 0;
    const ExitCode code =
        is_mended ? deliver(session, input, mended.read.text, delivery) : ExitCode::Done;
    if (is_mended && !call_.shows_diff)
      session.reporter().note({input.name}, counted(mended.count, "finding") + " corrected");
    input.read = std::move(mended.read);
    return code;
  }

  void print(Session& session, const FileReport& report) const {
    Output& output = session.output();
    switch (call_.options.form) {
      case FindingForm::Text:
        output.write_shown(text_form(report, call_.is_colored));
        return;
      case FindingForm::Json:
        write_json_form(report, [&](std::string_view piece) { output.write(piece); });
        return;
      case FindingForm::Github:
        output.write_shown(github_form(report));
        return;
      case FindingForm::Sarif:
        return;
    }
  }

  LintCall call_;
  CollectedReports reports_ = {};
  ProjectFinder projects_ = {};
};

/// Prints what concerns all files together.
void print_summary(Session& session, Linter& linter, const LintCall& call,
                   const std::vector<std::string>& arguments) {
  if (call.shows_diff) return;
  CollectedReports& reports = linter.reports();
  if (call.options.form == FindingForm::Sarif) {
    write_sarif_form(reports.take_reports(arguments), KELP_QUILL_INP_VERSION,
                     [&](std::string_view piece) { session.output().write(piece); });
  }
  if (call.options.tells_statistics)
    session.output().write_shown(statistics_text(reports.counts()));
  session.reporter().note({"quill-inp"}, count_words(reports));
}

ExitCode lint_files(Session& session, const CLI::App& app) {
  LintCall call;
  call.options = read_lint_options(app);
  call.fixes = is_given(app, fix);
  call.shows_diff = is_given(app, diff);
  call.is_colored = wants_color(session.options().color, session.output().file());
  if (call.shows_diff && !call.fixes) throw UsageError("--diff needs --fix");
  BatchOptions batch = read_batch_options(app);
  batch.counted = nullptr;  // the last line has other counts
  FileChoice choice = read_file_choice(app, values_of(app, files));
  choice.takes_each_once = call.fixes && !call.shows_diff;
  const ChosenFiles chosen = choose_files(session, choice);
  if (chosen.files.size() > 1)
    call.other_names = names_in_several_files(chosen.files, batch.threads);

  Linter linter(call);
  const ExitCode code = for_each_file(
      session, chosen, batch,
      [&](Session& one, const std::string& argument) { return linter(one, argument); });
  print_summary(session, linter, call, chosen.files);
  return code;
}

Verb add_linting_verb(CLI::App& program, const char* name) {
  CLI::App* app = add_verb(program, name, "Find probable mistakes in inputs", example);
  add_files(*app, files);
  add_lint_options(*app);
  add_flag(*app, fix);
  add_flag(*app, diff);
  add_file_options(*app);
  add_common_options(*app);
  return {app, lint_files};
}

}  // namespace

Verb add_lint(CLI::App& program) { return add_linting_verb(program, "lint"); }

Verb add_check(CLI::App& program) {
  const Verb verb = add_linting_verb(program, "check");
  verb.app->group("");  // not in the help: it is another name for lint
  return verb;
}

}  // namespace kelp::input::quill::tool
