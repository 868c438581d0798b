#include <string>
#include <vector>

#include "quill-inp/command_line/arguments.hpp"
#include "quill-inp/command_line/common_options.hpp"
#include "quill-inp/command_line/post_options.hpp"
#include "quill-inp/editing/edit_file.hpp"
#include "quill-inp/process/trouble.hpp"
#include "quill-inp/verbs/verb.hpp"

namespace kelp::input::quill::tool {

namespace {

constexpr const char* example =
    "Example:\n"
    "  quill-inp add -i peroxide.qin --bond 2,3 --scan 1,2,3,4:180:12";

constexpr Option file{"FILE", "", "The input"};

ExitCode add_to_file(Session& session, const CLI::App& app, const std::string& argument) {
  const std::vector<PostCommand> commands = read_post_commands(app);
  if (commands.empty()) throw UsageError("nothing to add");
  const auto edit = [&](lossless::TrackedDocument& document) {
    for (const PostCommand& command : commands) document.add_post_command(command);
    return EditReport();
  };
  return edit_file(session, argument, edit, read_delivery(app), read_loss_policy(app));
}

ExitCode add(Session& session, const CLI::App& app) {
  const std::string argument = *value_of(app, file);
  return for_file(session, argument, [&] { return add_to_file(session, app, argument); });
}

}  // namespace

Verb add_add(CLI::App& program) {
  CLI::App* app =
      add_verb(program, "add", "Add constraints, scans and other lines at the end", example);
  add_argument(*app, file);
  add_post_options(*app);
  add_delivery_options(*app);
  add_loss_options(*app);
  add_common_options(*app);
  return {app, add};
}

}  // namespace kelp::input::quill::tool
