#include <cstdint>
#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "kelp/input/quill/editor.hpp"
#include "quill-inp/command_line/arguments.hpp"
#include "quill-inp/command_line/geometry_options.hpp"
#include "quill-inp/command_line/post_argument.hpp"
#include "quill-inp/command_line/post_options.hpp"
#include "quill-inp/editing/print_document.hpp"
#include "quill-inp/keys/key.hpp"
#include "quill-inp/process/trouble.hpp"
#include "quill-inp/verbs/verb.hpp"

namespace kelp::input::quill::tool {

namespace {

constexpr const char* example =
    "Example:\n"
    "  quill-inp new --task opt --param maxiter=50 --param tight --model m1 --device gpu \\\n"
    "    --charge 0 --multiplicity 1 --atoms water.xyz --bond 1,2 > water.qin";

constexpr const char* name_of_result = "<new>";

/// parameter = name [ "=" value ]
CommandParameter parse_parameter(const std::string& text) {
  const std::size_t equals = text.find('=');
  CommandParameter parameter(text.substr(0, equals));
  if (equals != std::string::npos) parameter.value = text.substr(equals + 1);
  if (parameter.name.empty())
    throw UsageError("--param takes NAME or NAME=VALUE, not '" + text + "'");
  return parameter;
}

std::string read_task_name(const std::string& text) {
  std::string name = stored_command_name(text);
  if (is_nameless(name)) throw UsageError("--task takes a name, not '" + text + "'");
  return name;
}

/// Returns the tasks, each with the parameters that follow it on the command line.
std::vector<HeaderCommand> read_tasks(const CLI::App& app) {
  std::vector<HeaderCommand> tasks;
  for (const OptionUse& use : uses_in_order(app, {"--task", "--param"})) {
    if (use.name == "--task") {
      tasks.emplace_back(read_task_name(use.value));
    } else if (tasks.empty()) {
      throw UsageError("--param belongs behind the --task that it is for");
    } else {
      tasks.back().kind = HeaderCommandKind::ParameterList;
      tasks.back().parameters.push_back(parse_parameter(use.value));
    }
  }
  return tasks;
}

std::optional<std::int32_t> read_integer(const CLI::App& app, const std::string& option) {
  const auto text = value_of(app, option);
  return text ? std::optional(parse_integer(option, *text)) : std::nullopt;
}

void set_charge_and_multiplicity(const CLI::App& app, InputEditor& editor) {
  const auto charge = read_integer(app, "--charge");
  const auto multiplicity = read_integer(app, "--multiplicity");
  if (charge || multiplicity)
    editor.set_charge_and_multiplicity(charge.value_or(0), multiplicity.value_or(1));
}

void set_geometry(Session& session, const CLI::App& app, InputEditor& editor) {
  const std::optional<edit_support::Edit> edit = read_geometry(session, app);
  if (!edit) return;
  if (const auto* atoms = std::get_if<edit_support::SetAtoms>(&*edit))
    editor.set_geometry(atoms->atoms);
  if (const auto* references = std::get_if<edit_support::SetXyzFiles>(&*edit))
    editor.set_xyz_files(references->files);
  if (const auto* trajectory = std::get_if<edit_support::SetTrajectory>(&*edit))
    editor.set_xyz_trajectory(trajectory->path);
}

QuillInput build(Session& session, const CLI::App& app) {
  InputEditor editor{QuillInput()};
  for (const HeaderCommand& task : read_tasks(app)) editor.add_command(task);
  if (const auto model = value_of(app, "--model")) editor.set_model(*model);
  if (const auto device = value_of(app, "--device")) editor.set_device(*device);
  set_charge_and_multiplicity(app, editor);
  set_geometry(session, app, editor);
  for (const PostCommand& command : read_post_commands(app)) editor.add_post_command(command);
  return std::move(editor).document();
}

}  // namespace

Verb add_new(CLI::App& program) {
  CLI::App* app = add_verb(program, "new", "Print an input made from nothing", example);
  add_repeated(*app, "--task", "NAME", "What to compute: opt, freq and so on");
  add_repeated(*app, "--param", "NAME[=VALUE]", "A parameter of the task in front of it");
  add_value(*app, "--model", "VALUE", "The model");
  add_value(*app, "--device", "VALUE", "The device");
  add_value(*app, "--charge", "NUMBER", "The charge; 0 if only the multiplicity is given");
  add_value(*app, "--multiplicity", "NUMBER", "The multiplicity; 1 if only the charge is given");
  add_geometry_options(*app);
  add_post_options(*app);
  add_loss_options(*app);
  add_common_options(*app);
  return {app, [=](Session& session) {
            const LossPolicy policy = read_loss_policy(*app);
            return for_file(session, name_of_result, [&] {
              return print_document(session, name_of_result, build(session, *app), policy);
            });
          }};
}

}  // namespace kelp::input::quill::tool
