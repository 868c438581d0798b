#include "quill-inp/verbs/verb.hpp"

#include <exception>

#include <CLI/App.hpp>

#include "quill-inp/command_line/arguments.hpp"
#include "quill-inp/session/input_source.hpp"

namespace kelp::input::quill::tool {

namespace {

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

ExitCode for_file(Session& session, const std::string& argument,
                  const std::function<ExitCode()>& action) {
  try {
    return action();
  } catch (const UsageError&) {
    throw;
  } catch (const ReportedTrouble&) {
    return ExitCode::Trouble;
  } catch (const Trouble& trouble) {
    session.report(argument, trouble);
    return ExitCode::Trouble;
  } catch (const std::exception& error) {
    session.reporter().error({session.shown_name(argument)}, explain(error));
    return ExitCode::Trouble;
  }
}

ExitCode for_each_file(Session& session, const std::vector<std::string>& arguments,
                       const std::function<ExitCode(const std::string&)>& action) {
  // The texts of the other files would be written into this input, too.
  const ExitCode code = process_all(session, arguments, [&](const std::string& argument) {
    require_apart_from_output(session, argument);
    return ExitCode::Done;
  });
  return code == ExitCode::Done ? process_all(session, arguments, action) : code;
}

}  // namespace kelp::input::quill::tool
