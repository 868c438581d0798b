#include "quill-inp/editing/apply_settings.hpp"

#include <cstdint>
#include <optional>
#include <string>
#include <utility>

#include "quill-inp/command_line/post_options.hpp"
#include "quill-inp/process/trouble.hpp"

namespace kelp::input::quill::tool {

namespace {

using lossless::TrackedDocument;

/// Makes one setting after another and collects what to report about them.
class Settings {
 public:
  explicit Settings(TrackedDocument& document) : document_(document) {}

  void apply(const Setting& setting) {
    if (const auto* special = std::get_if<SpecialKey>(&setting.key)) {
      set_special(setting, *special);
      return;
    }
    const auto& key = std::get<CommandKey>(setting.key);
    const HeaderCommand* command = input().find_command(key.command, key.occurrence.value_or(0));
    if (command == nullptr && key.occurrence.value_or(0) > 0) {
      report_.missing.push_back(find_missing(input(), setting.key_text, setting.key));
      return;
    }
    add_ambiguities(input(), setting.key, report_.ambiguities);
    if (auto similar = find_similar_name(input(), key)) {
      report_.notes.push_back(
          {EditNote::Kind::NewName, setting.key_text, std::move(*similar), std::nullopt});
    }
    if (key.parameter) {
      set_parameter(setting, key, command);
    } else {
      set_command(setting, key, command);
    }
  }

  EditReport take_report() { return std::move(report_); }

 private:
  const QuillInput& input() const { return document_.document(); }

  void set_special(const Setting& setting, SpecialKey key) {
    if (key != SpecialKey::Charge && key != SpecialKey::Multiplicity) {
      throw UsageError("'" + setting.key_text +
                       "' cannot be set to a value; use --atoms, --xyz or --trajectory");
    }
    if (!setting.value)
      throw UsageError("'" + setting.key_text + "' cannot be set without a value");
    const std::int32_t number = parse_integer(setting.key_text, *setting.value);
    const GeometryBlock& geometry = input().geometry;
    if (key == SpecialKey::Charge) {
      document_.set_charge_and_multiplicity(number, geometry.multiplicity);
    } else {
      document_.set_charge_and_multiplicity(geometry.charge, number);
    }
  }

  void set_command(const Setting& setting, const CommandKey& key, const HeaderCommand* command) {
    require_first(setting, key);
    if (command != nullptr) note_lost_parameters(*command);
    if (setting.value) {
      document_.set_assignment(key.command, *setting.value);
      return;
    }
    if (command != nullptr) note_lost_value(*command);
    document_.set_flag(key.command);
  }

  void set_parameter(const Setting& setting, const CommandKey& key, const HeaderCommand* command) {
    if (command != nullptr) note_lost_value(*command);
    if (setting.value) {
      document_.set_parameter(key.command, *key.parameter, *setting.value,
                              key.occurrence.value_or(0));
    } else {
      set_bare_parameter(setting, key, command);
    }
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
    document_.set_task(key.command, std::move(parameters));
  }

  /// The editor can set a whole command only if it is the first one with its name.
  static void require_first(const Setting& setting, const CommandKey& key) {
    if (key.occurrence.value_or(0) > 0) {
      throw UsageError("'" + setting.key_text +
                       "': with a number, only COMMAND[N].PARAMETER=VALUE can be set");
    }
  }

  void note_lost_parameters(const HeaderCommand& command) {
    if (command.kind == HeaderCommandKind::ParameterList && !command.parameters.empty())
      report_.losses.push_back({SettingLoss::Kind::Parameters, command.name});
  }

  void note_lost_value(const HeaderCommand& command) {
    if (command.kind == HeaderCommandKind::Assignment && !command.value.value_or("").empty())
      report_.losses.push_back({SettingLoss::Kind::Value, command.name, *command.value});
  }

  void note_lost_parameter_value(const CommandParameter& parameter) {
    if (!parameter.value.value_or("").empty()) {
      report_.losses.push_back(
          {SettingLoss::Kind::ParameterValue, parameter.name, *parameter.value});
    }
  }

  TrackedDocument& document_;
  EditReport report_;
};

}  // namespace

EditReport apply_settings(const std::vector<Setting>& settings, TrackedDocument& document) {
  Settings all(document);
  for (const Setting& setting : settings) all.apply(setting);
  return all.take_report();
}

}  // namespace kelp::input::quill::tool
