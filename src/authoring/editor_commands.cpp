#include <cstddef>
#include <cstdint>
#include <utility>

#include "authoring/charge_and_multiplicity.hpp"
#include "kelp/input/quill/editor.hpp"

// Everything that can fail comes before the first change, and an argument is copied before the
// document changes, since it may point into the document.

namespace kelp::input::quill {

namespace {

/// The position in a list that a 64-bit index names; on some machines, positions have fewer bits.
template <typename List>
auto& at_index(List& list, std::uint64_t index) {
  return *(list.begin() + static_cast<std::ptrdiff_t>(index));
}

}  // namespace

InputEditor::InputEditor(QuillInput input) : document_(std::move(input)) {}

std::string InputEditor::to_string() const { return document_.to_string(); }

void InputEditor::write_file(const std::string& path) const { document_.write_file(path); }

bool InputEditor::has_command(std::string_view name) const { return document_.has_command(name); }

bool InputEditor::has_task_command() const { return document_.has_task_command(); }

std::vector<std::string> InputEditor::command_names() const { return document_.command_names(); }

std::optional<std::string> InputEditor::get_assignment(std::string_view name) const {
  const HeaderCommand* command = document_.find_command(name, 0);
  if (command == nullptr || command->kind != HeaderCommandKind::Assignment) return std::nullopt;
  return command->value;
}

std::optional<std::string> InputEditor::model() const { return get_assignment("model"); }

std::optional<std::string> InputEditor::device() const { return get_assignment("device"); }

std::optional<std::string> InputEditor::get_parameter(std::string_view command_name,
                                                      std::string_view parameter_name,
                                                      std::uint64_t occurrence) const {
  const HeaderCommand* command = document_.find_command(command_name, occurrence);
  if (command == nullptr) return std::nullopt;
  const auto index = find_parameter_index(*command, parameter_name);
  if (!index) return std::nullopt;
  return at_index(command->parameters, *index).value;
}

void InputEditor::set_flag(std::string_view name) {
  HeaderCommand& command = document_.upsert_command(std::string(name));
  command.kind = HeaderCommandKind::Flag;
  command.value.reset();
  command.parameters.clear();
}

void InputEditor::set_assignment(std::string_view name, std::string_view value) {
  std::string stored(value);
  HeaderCommand& command = document_.upsert_command(std::string(name));
  command.kind = HeaderCommandKind::Assignment;
  command.value = std::move(stored);
  command.parameters.clear();
}

void InputEditor::set_model(std::string_view value) { set_assignment("model", value); }

void InputEditor::set_device(std::string_view value) { set_assignment("device", value); }

void InputEditor::set_task(std::string_view name, std::vector<CommandParameter> parameters) {
  HeaderCommand& command = document_.upsert_command(std::string(name));
  command.value.reset();
  command.parameters = std::move(parameters);
  command.kind =
      command.parameters.empty() ? HeaderCommandKind::Flag : HeaderCommandKind::ParameterList;
}

void InputEditor::set_parameter(std::string_view command_name, std::string_view parameter_name,
                                std::string_view value, std::uint64_t occurrence) {
  CommandParameter parameter{std::string(parameter_name), std::string(value)};
  std::optional<std::uint64_t> index;
  HeaderCommand* command = document_.find_command(command_name, occurrence);
  if (command != nullptr) {
    index = find_parameter_index(*command, parameter_name);
  } else {
    command = &document_.upsert_command(std::string(command_name));
  }
  if (index) {
    at_index(command->parameters, *index).value = std::move(parameter.value);
  } else {
    command->parameters.push_back(std::move(parameter));
  }
  command->kind = HeaderCommandKind::ParameterList;
  command->value.reset();
}

bool InputEditor::remove_parameter(std::string_view command_name, std::string_view parameter_name,
                                   std::uint64_t occurrence) {
  HeaderCommand* command = document_.find_command(command_name, occurrence);
  if (command == nullptr) return false;
  const auto index = find_parameter_index(*command, parameter_name);
  if (!index) return false;
  command->parameters.erase(command->parameters.begin() + static_cast<std::ptrdiff_t>(*index));
  if (command->parameters.empty() && command->kind == HeaderCommandKind::ParameterList) {
    command->kind = HeaderCommandKind::Flag;
  }
  return true;
}

bool InputEditor::remove_command(std::string_view name, std::optional<std::uint64_t> occurrence) {
  return document_.remove_command(name, occurrence);
}

void InputEditor::add_command(HeaderCommand&& command) {
  document_.commands.push_back(std::move(command));
}

void InputEditor::add_command(const HeaderCommand& command) {
  document_.commands.push_back(command);
}

void InputEditor::set_charge_and_multiplicity(int charge, int multiplicity) {
  assign_charge_and_multiplicity(document_.geometry, charge, multiplicity);
}

void InputEditor::clear_charge_and_multiplicity() {
  reset_charge_and_multiplicity(document_.geometry);
}

}  // namespace kelp::input::quill
