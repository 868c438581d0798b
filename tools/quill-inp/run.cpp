#include "quill-inp/run.hpp"

#include <algorithm>
#include <exception>
#include <iterator>
#include <memory>
#include <new>
#include <optional>
#include <string_view>

#include <CLI/App.hpp>
#include <CLI/Config.hpp>

#include "quill-inp/command_line/arguments.hpp"
#include "quill-inp/command_line/common_options.hpp"
#include "quill-inp/command_line/help_formatter.hpp"
#include "quill-inp/process/exit_code.hpp"
#include "quill-inp/process/trouble.hpp"
#include "quill-inp/session/output.hpp"
#include "quill-inp/session/reporter.hpp"
#include "quill-inp/text/suggestion.hpp"
#include "quill-inp/verbs/verb.hpp"

namespace kelp::input::quill::tool {

namespace {

constexpr const char* program_name = "quill-inp";
constexpr const char* description =
    "Shows, formats and edits QUILL inputs. Every text is checked before it is written.";
constexpr const char* footer =
    "Example:\n"
    "  quill-inp set -i job.qin opt.maxiter=100 @charge=-1\n"
    "\n"
    "FILE may be '-' for standard input. Exit codes: 0 done; 1 the answer is no (differs,\n"
    "would change, no match); 2 trouble (usage, unreadable, unwritable, refused).";

/// The program's command line.
struct CommandLine {
  CLI::App program{description, program_name};
  std::vector<Verb> verbs = {};
};

struct KnownVerb {
  std::string_view name;
  Verb (*add)(CLI::App& program);
};

// In the order in which the help names them.
constexpr KnownVerb known_verbs[] = {
    {"show", add_show}, {"fmt", add_fmt},     {"get", add_get},
    {"set", add_set},   {"unset", add_unset}, {"add", add_add},
    {"new", add_new},   {"sweep", add_sweep}, {"hash", add_hash},
    {"diff", add_diff}, {"json", add_json},   {"from-json", add_from_json},
    {"lint", add_lint}, {"check", add_check}, {"explain", add_explain},
    {"lsp", add_lsp},   {"help", add_help},
};

/// To describe the options of all verbs takes as long as the work on a small file. So these are
/// only the verbs that the arguments name, or all if they name none, or ask for help. The version
/// needs none.
std::vector<KnownVerb> verbs_to_describe(const std::vector<std::string>& arguments) {
  if (arguments == std::vector<std::string>{"--version"}) return {};
  const auto is_named = [&](std::string_view name) {
    return std::find(arguments.begin(), arguments.end(), name) != arguments.end();
  };
  std::vector<KnownVerb> named;
  std::copy_if(std::begin(known_verbs), std::end(known_verbs), std::back_inserter(named),
               [&](const KnownVerb& verb) { return is_named(verb.name); });
  const bool is_help = is_named("help") || is_named("--help") || is_named("-h");
  if (named.empty() || is_help) named.assign(std::begin(known_verbs), std::end(known_verbs));
  return named;
}

void describe(CommandLine& line, const std::vector<std::string>& arguments) {
  line.program.formatter(std::make_shared<HelpFormatter>());
  line.program.require_subcommand(0, 1)->allow_extras();
  line.program.footer(footer);
  begin_group(line.program, "General");
  line.program.set_help_flag("-h,--help", "Print this help");
  line.program.set_version_flag("--version", std::string("quill-inp ") + KELP_QUILL_INP_VERSION,
                                "Print the version");
  for (const KnownVerb& verb : verbs_to_describe(arguments))
    line.verbs.push_back(verb.add(line.program));
}

std::vector<std::string> names_of(const std::vector<Verb>& verbs) {
  std::vector<std::string> names;
  names.reserve(verbs.size());
  for (const Verb& verb : verbs) names.push_back(verb.app->get_name());
  return names;
}

std::vector<std::string> option_names(const CLI::App& app) {
  std::vector<std::string> names;
  for (const CLI::Option* option : app.get_options()) {
    for (const std::string& name : option->get_lnames()) names.push_back("--" + name);
  }
  return names;
}

/// Returns, in the words of this program, the message of CLI11 about an option without its value.
std::string describe(const CLI::ArgumentMismatch& error) {
  const std::string text = error.what();
  return text.substr(0, text.find_first_of(": ")) + " needs a value";
}

/// Returns a complaint about the first argument that an option took by mistake, or that no option
/// or verb has taken, if there is one.
std::optional<std::string> find_misplaced(const CLI::App& app) {
  if (auto complaint = find_forgotten_value(app)) return complaint;
  for (const std::string& leftover : app.remaining()) {
    const std::string argument = unmarked(leftover);
    if (argument == "--") continue;
    const std::string name = argument.substr(0, argument.find('='));
    if (argument.substr(0, 1) == "-")
      return "unknown option '" + name + "'" + suggestion(name, option_names(app));
    return "unexpected argument '" + argument + "'";
  }
  return std::nullopt;
}

void refuse_misplaced(const CLI::App& app) {
  if (const std::optional<std::string> complaint = find_misplaced(app))
    throw UsageError(*complaint);
}

/// Returns the message about an argument that is missing. A misspelled option is reported first: it
/// may be the reason why the argument is missing.
std::string describe(const CLI::RequiredError& error, const CommandLine& line) {
  for (const Verb& verb : line.verbs) {
    if (!verb.app->parsed()) continue;
    if (const std::optional<std::string> complaint = find_misplaced(*verb.app)) return *complaint;
  }
  return error.what();
}

const Verb& find_verb(const CommandLine& line) {
  for (const Verb& verb : line.verbs) {
    if (verb.app->parsed()) return verb;
  }
  for (const std::string& leftover : line.program.remaining()) {
    const std::string argument = unmarked(leftover);
    if (argument.substr(0, 1) != "-")
      throw UsageError("unknown verb '" + argument + "'" +
                       suggestion(argument, names_of(line.verbs)));
  }
  refuse_misplaced(line.program);
  throw UsageError("no verb");
}

std::string help_hint(const CommandLine& line) {
  std::string command = program_name;
  for (const Verb& verb : line.verbs) {
    if (verb.app->parsed()) command += " " + verb.app->get_name();
  }
  return "see '" + command + " --help'";
}

ExitCode carry_out(CommandLine& line, const StandardStreams& streams, Output& out) {
  const Verb& verb = find_verb(line);
  for (const std::string& leftover : line.program.remaining())
    throw UsageError("'" + unmarked(leftover) + "' must come after the verb");
  refuse_misplaced(*verb.app);
  Session session(streams, out, read_common_options(*verb.app));
  return verb.action(session, *verb.app);
}

void parse(CommandLine& line, const std::vector<std::string>& arguments) {
  std::vector<std::string> reversed = marked_arguments(arguments);
  std::reverse(reversed.begin(), reversed.end());
  line.program.parse(reversed);
}

ExitCode run_program(const std::vector<std::string>& arguments, const StandardStreams& streams,
                     Output& out) {
  CommandLine line;
  describe(line, arguments);
  if (arguments.empty()) {
    out.write_shown(line.program.help());
    return ExitCode::Done;
  }
  std::string complaint;
  try {
    parse(line, arguments);
    return carry_out(line, streams, out);
  } catch (const CLI::CallForHelp&) {
    out.write_shown(line.program.help());
    return ExitCode::Done;
  } catch (const CLI::CallForVersion& version) {
    out.write_shown(std::string(version.what()) + "\n");
    return ExitCode::Done;
  } catch (const CLI::ArgumentMismatch& error) {
    complaint = describe(error);
  } catch (const CLI::RequiredError& error) {
    complaint = describe(error, line);
  } catch (const CLI::ParseError& error) {
    complaint = error.what();
  } catch (const UsageError& error) {
    complaint = error.what();
  }
  const CommonOptions options = find_message_options(arguments);
  Reporter reporter(streams.err, options.is_quiet, wants_color(options.color, streams.err_file));
  reporter.error({program_name}, complaint);
  reporter.note({program_name}, help_hint(line));
  return ExitCode::Trouble;
}

/// Runs the program and reports what ended it. Throws std::bad_alloc when there is not even the
/// memory for a message.
ExitCode run_and_report(const std::vector<std::string>& arguments, const StandardStreams& streams) {
  Output output(streams.out, streams.out_file);
  Reporter reporter(streams.err, false, false);
  ExitCode code = ExitCode::Trouble;
  try {
    code = run_program(arguments, streams, output);
  } catch (const std::exception& error) {
    reporter.error({program_name}, explain(error));
  }
  if (const std::optional<std::string> failure = output.find_failure()) {
    reporter.error({program_name}, *failure);
    code = ExitCode::Trouble;
  }
  return code;
}

}  // namespace

int run(const std::vector<std::string>& arguments, const StandardStreams& streams) {
  try {
    return static_cast<int>(run_and_report(arguments, streams));
  } catch (const std::bad_alloc&) {
    return report_out_of_memory(streams.err);
  }
}

int report_out_of_memory(std::ostream& err) {
  err << program_name << ": error: out of memory\n" << std::flush;
  return static_cast<int>(ExitCode::Trouble);
}

}  // namespace kelp::input::quill::tool
