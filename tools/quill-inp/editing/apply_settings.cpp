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
  Settings(TrackedDocument& document, NewNames new_names)
      : document_(document), new_names_(new_names) {}

  void apply(const Setting& setting) {
    if (const auto* special = std::get_if<SpecialKey>(&setting.key)) {
      set_special(setting, *special);
      return;
    }
    const auto& key = std::get<CommandKey>(setting.key);
    const HeaderCommand* command = find_command(input(), key);
    if (is_missing(setting, key, command)) {
      report_.missing.push_back(find_missing(input(), setting.key_text, setting.key));
      return;
    }
    add_ambiguities(input(), setting.key, report_.ambiguities);
    if (auto similar = find_similar_name(input(), key)) {
      report_.notes.push_back(
          {EditNote::Kind::NewName, setting.key_text, std::move(*similar), std::nullopt});
    }
    if (setting.new_name) {
      rename(*command, *setting.new_name);
    } else if (key.parameter) {
      set_parameter(setting, key, command);
    } else {
      set_command(setting, key, command);
    }
  }

  EditReport take_report() { return std::move(report_); }

 private:
  /// Whether the key names something that does not exist and must not be created.
  bool is_missing(const Setting& setting, const CommandKey& key,
                  const HeaderCommand* command) const {
    if (command == nullptr) {
      return key.position || key.occurrence.value_or(0) > 0 || setting.new_name ||
             new_names_ == NewNames::Missing;
    }
    return new_names_ == NewNames::Missing && key.parameter &&
           !find_parameter_index(*command, *key.parameter);
  }

  void rename(const HeaderCommand& command, const std::string& name) {
    HeaderCommand renamed = command;
    renamed.name = name;
    replace(command, std::move(renamed));
  }

  const QuillInput& input() const { return document_.document(); }

  void set_special(const Setting& setting, SpecialKey key) {
    if (!setting.value)
      throw UsageError("'" + setting.key_text + "' cannot be set without a value");
    if (new_names_ == NewNames::Missing && !input().geometry.has_charge_and_multiplicity) {
      report_.missing.push_back(find_missing(input(), setting.key_text, setting.key));
      return;
    }
    const std::int32_t number = parse_integer(setting.key_text, *setting.value);
    const GeometryBlock& geometry = input().geometry;
    if (key == SpecialKey::Charge) {
      document_.set_charge_and_multiplicity(number, geometry.multiplicity);
    } else {
      document_.set_charge_and_multiplicity(geometry.charge, number);
    }
  }

  void set_command(const Setting& setting, const CommandKey& key, const HeaderCommand* command) {
    if (command != nullptr) {
      note_lost_parameters(*command);
      if (!setting.value) note_lost_value(*command);
      const auto kind = setting.value ? HeaderCommandKind::Assignment : HeaderCommandKind::Flag;
      replace(*command, HeaderCommand(command->name, kind, setting.value));
    } else if (setting.value) {
      document_.set_assignment(key.command, *setting.value);
    } else {
      document_.set_flag(key.command);
    }
  }

  void set_parameter(const Setting& setting, const CommandKey& key, const HeaderCommand* command) {
    if (command == nullptr) {
      create_with_parameter(setting, key);
      return;
    }
    note_lost_value(*command);
    HeaderCommand changed(command->name, HeaderCommandKind::ParameterList, std::nullopt,
                          command->parameters);
    const std::optional<std::uint64_t> index = find_parameter_index(*command, *key.parameter);
    if (!index) {
      changed.parameters.emplace_back(*key.parameter, setting.value);
    } else {
      CommandParameter& parameter = changed.parameters[*index];
      if (!setting.value) note_lost_parameter_value(parameter);
      parameter.value = setting.value;
    }
    replace(*command, std::move(changed));
  }

  void create_with_parameter(const Setting& setting, const CommandKey& key) {
    if (setting.value) {
      document_.set_parameter(key.command, *key.parameter, *setting.value);
    } else {
      document_.set_task(key.command, {CommandParameter(*key.parameter)});
    }
  }

  void replace(const HeaderCommand& old, HeaderCommand command) {
    const auto index = static_cast<std::size_t>(&old - input().commands.data());
    document_.replace_command(index, std::move(command));
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
  NewNames new_names_;
  EditReport report_;
};

}  // namespace

EditReport apply_settings(const std::vector<Setting>& settings, TrackedDocument& document,
                          NewNames new_names) {
  Settings all(document, new_names);
  for (const Setting& setting : settings) all.apply(setting);
  return all.take_report();
}

}  // namespace kelp::input::quill::tool
