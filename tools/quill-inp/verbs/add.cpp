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

constexpr Option files{"FILE", "", "The inputs"};

ExitCode add(Session& session, const CLI::App& app) {
  const std::vector<PostCommand> commands = read_post_commands(app);
  if (commands.empty()) throw UsageError("nothing to add");
  const auto edit = [&](lossless::TrackedDocument& document) {
    for (const PostCommand& command : commands) document.add_post_command(command);
    return EditReport();
  };
  return edit_files(session, read_edit_options(app, values_of(app, files)), edit);
}

}  // namespace

Verb add_add(CLI::App& program) {
  CLI::App* app =
      add_verb(program, "add", "Add constraints, scans and other lines at the end", example);
  add_files(*app, files);
  add_post_options(*app);
  add_edit_options(*app);
  add_common_options(*app);
  return {app, add};
}

}  // namespace kelp::input::quill::tool
