#include "quill-inp/verbs/verb.hpp"

#include <charconv>
#include <cstdint>
#include <exception>
#include <limits>
#include <optional>
#include <string_view>

#include <CLI/App.hpp>

#include "quill-inp/command_line/arguments.hpp"
#include "quill-inp/session/input_source.hpp"
#include "quill-inp/text/suggestion.hpp"

namespace kelp::input::quill::tool {

namespace {

ColorMode parse_color_mode(const std::string& text) {
  if (const auto mode = find_color_mode(text)) return *mode;
  throw UsageError("--color takes auto, always or never, not '" + text + "'" +
                   suggestion(text, color_mode_names()));
}

struct SizeUnit {
  std::string_view name;
  unsigned shift;
};

constexpr SizeUnit size_units[] = {{"", 0}, {"KiB", 10}, {"MiB", 20}, {"GiB", 30}};

/// Far more than any memory holds, and far enough from the end of the range to be added to.
constexpr std::uint64_t largest_size = std::numeric_limits<std::uint64_t>::max() / 4;

/// size = digits [ "KiB" / "MiB" / "GiB" ]
std::uint64_t parse_size(const std::string& text) {
  std::uint64_t number = 0;
  const char* const end = text.data() + text.size();
  const auto [after, error] = std::from_chars(text.data(), end, number);
  const std::string_view unit_name(after, static_cast<std::size_t>(end - after));
  for (const SizeUnit& unit : size_units) {
    if (error == std::errc() && unit.name == unit_name && number <= largest_size >> unit.shift)
      return number << unit.shift;
  }
  throw UsageError("--max-size takes a number of bytes, KiB, MiB or GiB, '256MiB', not '" + text +
                   "'");
}

/// Carries `action` out for every file and returns the worst code.
ExitCode process_all(Session& session, const std::vector<std::string>& arguments,
                     const std::function<ExitCode(const std::string&)>& action) {
  ExitCode worst = ExitCode::Done;
  for (const std::string& argument : arguments)
    worst = worse_of(worst, for_file(session, argument, [&] { return action(argument); }));
  return worst;
}

}  // namespace

CLI::App* add_verb(CLI::App& program, const std::string& name, const std::string& description,
                   const std::string& example) {
  CLI::App* app = program.add_subcommand(name, description);
  app->group("Verbs")->allow_extras();
  begin_group(*app, "Options");
  app->footer(example);
  return app;
}

void add_common_options(CLI::App& verb) {
  begin_group(verb, "General");
  verb.set_help_flag("-h,--help", "Print this help");
  add_flag(verb, "-q,--quiet", "Report errors only, no warnings and notes");
  add_value(verb, "--color", "WHEN", "Use colour: auto, always or never");
  add_value(verb, "--max-size", "SIZE", "Refuse larger files (256MiB)");
  add_value(verb, "--stdin-filename", "NAME", "What to call standard input, '-'");
}

CommonOptions read_common_options(const CLI::App& verb) {
  CommonOptions options;
  options.is_quiet = is_given(verb, "--quiet");
  if (const auto color = value_of(verb, "--color")) options.color = parse_color_mode(*color);
  if (const auto size = value_of(verb, "--max-size")) options.max_size = parse_size(*size);
  if (const auto name = value_of(verb, "--stdin-filename")) options.stdin_filename = *name;
  return options;
}

void report(Session& session, const std::string& argument, const Trouble& trouble) {
  session.reporter().error({session.shown_name(argument), trouble.line()}, trouble.what());
}

ExitCode for_file(Session& session, const std::string& argument,
                  const std::function<ExitCode()>& action) {
  try {
    return action();
  } catch (const UsageError&) {
    throw;
  } catch (const ReportedTrouble&) {
    return ExitCode::Trouble;
  } catch (const Trouble& trouble) {
    report(session, argument, trouble);
    return ExitCode::Trouble;
  } catch (const std::exception& error) {
    session.reporter().error({session.shown_name(argument)}, explain(error));
    return ExitCode::Trouble;
  }
}

ExitCode for_each_file(Session& session, const std::vector<std::string>& arguments,
                       const std::function<ExitCode(const std::string&)>& action) {
  // The texts of the other files would go into an input as well.
  const ExitCode code = process_all(session, arguments, [&](const std::string& argument) {
    require_apart_from_output(session, argument);
    return ExitCode::Done;
  });
  return code == ExitCode::Done ? process_all(session, arguments, action) : code;
}

}  // namespace kelp::input::quill::tool
