#include "quill-inp/verbs/verb.hpp"

#include <CLI/App.hpp>

#include "quill-inp/command_line/file_options.hpp"

namespace kelp::input::quill::tool {

CLI::App* add_verb(CLI::App& program, const std::string& name, const std::string& description,
                   const std::string& example) {
  CLI::App* app = program.add_subcommand(name, description);
  app->group("Verbs")->allow_extras();
  begin_group(*app, "Options");
  app->footer(example);
  return app;
}

ExitCode for_chosen_files(Session& session, const CLI::App& app,
                          const std::vector<std::string>& arguments, const FileAction& action) {
  const BatchOptions options = read_batch_options(app);
  const ChosenFiles files = choose_files(session, read_file_choice(app, arguments));
  return for_each_file(session, files, options, action);
}

}  // namespace kelp::input::quill::tool
