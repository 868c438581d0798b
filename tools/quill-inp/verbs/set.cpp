#include <string>
#include <vector>

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
    "KEY is COMMAND, COMMAND.PARAMETER, COMMAND[N].PARAMETER, @charge or @multiplicity, where\n"
    "N counts from 0; for --flag it is COMMAND or COMMAND.PARAMETER. Settings are made in the\n"
    "order in which they are given. Put them before --xyz, which takes all words after it as\n"
    "paths. Only the lines that have to change are changed.";

constexpr Option file{"FILE", "", "The input"};

ExitCode set_in_file(Session& session, const CLI::App& app, const std::string& argument) {
  const std::vector<Setting> settings = read_settings(app);
  const Delivery delivery = read_delivery(app);
  const LossPolicy policy = read_loss_policy(app);
  const GeometryChange change_geometry = read_geometry_change(session, app);
  if (settings.empty() && !change_geometry) throw UsageError("nothing to set");
  const auto edit = [&](lossless::TrackedDocument& document) {
    EditReport report = apply_settings(settings, document);
    if (change_geometry) change_geometry(document);
    return report;
  };
  return edit_file(session, argument, edit, delivery, policy);
}

ExitCode set(Session& session, const CLI::App& app) {
  const std::string argument = *value_of(app, file);
  return for_file(session, argument, [&] { return set_in_file(session, app, argument); });
}

}  // namespace

Verb add_set(CLI::App& program) {
  CLI::App* app = add_verb(program, "set", "Set values, parameters and the geometry", example);
  add_argument(*app, file);
  add_setting_options(*app);
  add_geometry_options(*app);
  add_delivery_options(*app);
  add_loss_options(*app);
  add_common_options(*app);
  return {app, set};
}

}  // namespace kelp::input::quill::tool
