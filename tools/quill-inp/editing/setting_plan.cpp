#include "quill-inp/editing/setting_plan.hpp"

#include <cstdint>
#include <optional>
#include <string>
#include <utility>

#include "kelp/input/quill/editor.hpp"
#include "quill-inp/command_line/post_argument.hpp"
#include "quill-inp/keys/answer.hpp"
#include "quill-inp/process/trouble.hpp"

namespace kelp::input::quill::tool {

namespace {

using edit_support::SetAssignment;
using edit_support::SetChargeAndMultiplicity;
using edit_support::SetFlag;
using edit_support::SetParameter;
using edit_support::SetTask;

/// Turns settings into edits, and follows with an editor of its own what the document is after
/// each, since a setting may build on those before it.
class SettingPlanner {
 public:
  explicit SettingPlanner(const QuillInput& input) : editor_(input) {}

  void add(const Setting& setting) {
    if (const auto* special = std::get_if<SpecialKey>(&setting.key)) {
      set_special(setting, *special);
      return;
    }
    const auto& key = std::get<CommandKey>(setting.key);
    const HeaderCommand* command = find(key);
    if (command == nullptr && key.occurrence.value_or(0) > 0) {
      plan_.missing.push_back(explain_no_answer(editor_.document(), setting.key_text, setting.key));
      return;
    }
    if (const auto note = explain_new_name(editor_.document(), setting.key_text, key))
      plan_.notes.push_back({*note});
    if (key.parameter) {
      set_parameter(setting, key, command);
    } else {
      set_command(setting, key, command);
    }
  }

  EditPlan take() { return std::move(plan_); }

 private:
  const HeaderCommand* find(const CommandKey& key) const {
    return editor_.document().find_command(key.command, key.occurrence.value_or(0));
  }

  void set_special(const Setting& setting, SpecialKey key) {
    if (key != SpecialKey::Charge && key != SpecialKey::Multiplicity) {
      throw UsageError("'" + setting.key_text +
                       "' cannot be set by a value; use --atoms, --xyz or --trajectory");
    }
    if (!setting.value)
      throw UsageError("'" + setting.key_text + "' cannot be set without a value");
    const std::int32_t number = parse_integer(setting.key_text, *setting.value);
    SetChargeAndMultiplicity edit;
    (key == SpecialKey::Charge ? edit.charge : edit.multiplicity) = number;
    plan_.edits.emplace_back(edit);
  }

  void set_command(const Setting& setting, const CommandKey& key, const HeaderCommand* command) {
    require_first(setting, key);
    if (command != nullptr) note_lost_parameters(*command);
    if (setting.value) {
      editor_.set_assignment(key.command, *setting.value);
      plan_.edits.emplace_back(SetAssignment{key.command, *setting.value});
      return;
    }
    if (command != nullptr) note_lost_value(*command);
    editor_.set_flag(key.command);
    plan_.edits.emplace_back(SetFlag{key.command});
  }

  void set_parameter(const Setting& setting, const CommandKey& key, const HeaderCommand* command) {
    if (command != nullptr) note_lost_value(*command);
    if (!setting.value) {
      set_bare_parameter(setting, key, command);
      return;
    }
    const std::uint64_t occurrence = key.occurrence.value_or(0);
    editor_.set_parameter(key.command, *key.parameter, *setting.value, occurrence);
    plan_.edits.emplace_back(SetParameter{key.command, *key.parameter, *setting.value, occurrence});
  }

  void set_bare_parameter(const Setting& setting, const CommandKey& key,
                          const HeaderCommand* command) {
    require_first(setting, key);
    std::vector<CommandParameter> parameters;
    std::optional<std::uint64_t> index;
    if (command != nullptr) {
      parameters = command->parameters;
      index = find_parameter_index(*command, *key.parameter);
    }
    if (!index) {
      parameters.emplace_back(*key.parameter);
    } else {
      note_lost_parameter_value(parameters[*index]);
      parameters[*index].value.reset();
    }
    editor_.set_task(key.command, parameters);
    plan_.edits.emplace_back(SetTask{key.command, std::move(parameters)});
  }

  /// The editor knows only the first command of a name where whole commands are set.
  static void require_first(const Setting& setting, const CommandKey& key) {
    if (key.occurrence.value_or(0) > 0) {
      throw UsageError("'" + setting.key_text +
                       "': with a number, only COMMAND[N].PARAMETER=VALUE can be set");
    }
  }

  void note_lost_parameters(const HeaderCommand& command) {
    if (command.kind == HeaderCommandKind::ParameterList && !command.parameters.empty())
      lose("the command '" + command.name + "' would lose its parameters");
  }

  void note_lost_value(const HeaderCommand& command) {
    if (command.kind == HeaderCommandKind::Assignment && !command.value.value_or("").empty())
      lose("the command '" + command.name + "' would lose its value '" + *command.value + "'");
  }

  void note_lost_parameter_value(const CommandParameter& parameter) {
    if (!parameter.value.value_or("").empty()) {
      lose("the parameter '" + parameter.name + "' would lose its value '" + *parameter.value +
           "'");
    }
  }

  void lose(std::string what) { plan_.losses.push_back(std::move(what)); }

  InputEditor editor_;
  EditPlan plan_;
};

}  // namespace

EditPlan plan_settings(const std::vector<Setting>& settings, const QuillInput& input) {
  SettingPlanner planner(input);
  for (const Setting& setting : settings) planner.add(setting);
  return planner.take();
}

}  // namespace kelp::input::quill::tool
