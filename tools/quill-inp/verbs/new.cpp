#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "kelp/input/quill/lossless/tracked_document.hpp"
#include "quill-inp/command_line/arguments.hpp"
#include "quill-inp/command_line/common_options.hpp"
#include "quill-inp/command_line/geometry_options.hpp"
#include "quill-inp/command_line/post_options.hpp"
#include "quill-inp/editing/addition_doubts.hpp"
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

constexpr Option task{"--task", "NAME", "What to compute: opt, freq and so on"};
constexpr Option param{"--param", "NAME[=VALUE]", "A parameter of the task before it"};
constexpr Option model{"--model", "VALUE", "The model"};
constexpr Option device{"--device", "VALUE", "The device"};
constexpr Option charge{"--charge", "NUMBER", "The charge; 0 if only the multiplicity is given"};
constexpr Option multiplicity{"--multiplicity", "NUMBER",
                              "The multiplicity; 1 if only the charge is given"};

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
  for (const OptionUse& use : uses_in_order(app, {task, param})) {
    if (use.name == name_of(task)) {
      tasks.emplace_back(read_task_name(use.value));
    } else if (tasks.empty()) {
      throw UsageError("--param must come after the --task that it belongs to");
    } else {
      tasks.back().kind = HeaderCommandKind::ParameterList;
      tasks.back().parameters.push_back(parse_parameter(use.value));
    }
  }
  return tasks;
}

std::optional<std::int32_t> read_integer(const CLI::App& app, const Option& option) {
  const auto text = value_of(app, option);
  return text ? std::optional(parse_integer(name_of(option), *text)) : std::nullopt;
}

QuillInput build(Session& session, const CLI::App& app) {
  lossless::TrackedDocument document{QuillInput()};
  for (const HeaderCommand& command : read_tasks(app)) document.add_command(command);
  if (const auto value = value_of(app, model)) document.set_model(*value);
  if (const auto value = value_of(app, device)) document.set_device(*value);
  const auto charge_number = read_integer(app, charge);
  const auto multiplicity_number = read_integer(app, multiplicity);
  if (charge_number || multiplicity_number)
    document.set_charge_and_multiplicity(charge_number.value_or(0),
                                         multiplicity_number.value_or(1));
  if (const auto change_geometry = read_geometry_change(session, app)) change_geometry(document);
  for (const PostCommand& command : read_post_commands(app)) document.add_post_command(command);
  return document.document();
}

ExitCode make_new(Session& session, const CLI::App& app) {
  const LossPolicy policy = read_loss_policy(app);
  const OutputFile output = read_output_file(app);
  return for_file(session, name_of_result, [&] {
    const QuillInput document = build(session, app);
    const auto doubts = find_addition_doubts(QuillInput(), document, ".");
    if (!accept_additions(session, name_of_result, doubts, policy)) return ExitCode::Trouble;
    return print_document(session, name_of_result, document, policy, output);
  });
}

}  // namespace

Verb add_new(CLI::App& program) {
  CLI::App* app = add_verb(program, "new", "Print a new input", example);
  add_repeated(*app, task);
  add_repeated(*app, param);
  for (const Option& option : {model, device, charge, multiplicity}) add_value(*app, option);
  add_geometry_options(*app);
  add_post_options(*app);
  add_output_options(*app);
  add_loss_options(*app);
  add_common_options(*app);
  return {app, make_new};
}

}  // namespace kelp::input::quill::tool
