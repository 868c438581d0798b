#include <string>

#include "quill-inp/command_line/arguments.hpp"
#include "quill-inp/command_line/common_options.hpp"
#include "quill-inp/command_line/geometry_options.hpp"
#include "quill-inp/command_line/setting_options.hpp"
#include "quill-inp/editing/apply_settings.hpp"
#include "quill-inp/editing/edit_file.hpp"
#include "quill-inp/process/trouble.hpp"
#include "quill-inp/verbs/verb.hpp"

namespace kelp::input::quill::tool {

namespace {

constexpr const char* example =
    "Example:\n"
    "  quill-inp set -i water.qin opt.maxiter=100 model=m1 @charge=-1\n"
    "\n"
    "KEY is COMMAND, COMMAND.PARAMETER, COMMAND[N] or COMMAND[N].PARAMETER, where N counts\n"
    "from 0, or @commands[N] for the N-th of all commands, @charge or @multiplicity. Settings\n"
    "are made in the order in which they are given. A word without '=' is a further file. Put\n"
    "all words before --xyz, which takes the words after it as paths. Only the lines that have\n"
    "to change are changed.";

/// Reads the geometry, which may be in a separate file, and makes the edits.
ExitCode set_in_files(Session& session, const CLI::App& app, const FilesAndSettings& given) {
  const NewNames new_names = sets_only_existing(app) ? NewNames::Missing : NewNames::Created;
  const EditOptions options = read_edit_options(app, given.files);
  const GeometryChange change_geometry = read_geometry_change(session, app);
  if (given.settings.empty() && !change_geometry) throw UsageError("nothing to set");
  const auto edit = [&](lossless::TrackedDocument& document) {
    EditReport report = apply_settings(given.settings, document, new_names);
    if (change_geometry) change_geometry(document);
    return report;
  };
  return edit_files(session, options, edit);
}

ExitCode set(Session& session, const CLI::App& app) {
  const FilesAndSettings given = read_files_and_settings(app);
  const std::string name = given.files.size() == 1 ? given.files.front() : "quill-inp";
  return for_file(session, name, [&] { return set_in_files(session, app, given); });
}

}  // namespace

Verb add_set(CLI::App& program) {
  CLI::App* app = add_verb(program, "set", "Set values, parameters and the geometry", example);
  add_setting_options(*app);
  add_geometry_options(*app);
  add_edit_options(*app);
  add_common_options(*app);
  return {app, set};
}

}  // namespace kelp::input::quill::tool
