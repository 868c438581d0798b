#include "edit_support/tracked_document.hpp"

#include <string>
#include <utility>
#include <variant>

namespace kelp::input::quill::edit_support {

TrackedDocument::TrackedDocument(QuillInput input) : editor_(std::move(input)) {
  for (std::size_t i = 0; i < document().commands.size(); ++i) origins_.emplace_back(i);
}

void TrackedDocument::apply(const Edit& edit) {
  std::visit([this](const auto& operation) { perform(operation); }, edit);
  // Commands are only ever appended; those that are removed were taken out of the list already.
  origins_.resize(document().commands.size());
}

void TrackedDocument::perform(const SetFlag& edit) { editor_.set_flag(edit.name); }

void TrackedDocument::perform(const SetAssignment& edit) {
  editor_.set_assignment(edit.name, edit.value);
}

void TrackedDocument::perform(const SetTask& edit) { editor_.set_task(edit.name, edit.parameters); }

void TrackedDocument::perform(const SetParameter& edit) {
  editor_.set_parameter(edit.command, edit.parameter, edit.value, edit.occurrence);
}

void TrackedDocument::perform(const RemoveParameter& edit) {
  editor_.remove_parameter(edit.command, edit.parameter, edit.occurrence);
}

void TrackedDocument::perform(const AddCommand& edit) { editor_.add_command(edit.command); }

void TrackedDocument::perform(const RemoveCommand& edit) {
  const std::string name = normalize_command_name(edit.name);
  const std::vector<HeaderCommand>& commands = document().commands;
  std::vector<std::optional<std::size_t>> kept;
  std::uint64_t matches = 0;
  for (std::size_t i = 0; i < commands.size(); ++i) {
    const bool is_match = normalize_command_name(commands[i].name) == name;
    if (!is_match || (edit.occurrence && *edit.occurrence != matches)) kept.push_back(origins_[i]);
    if (is_match) ++matches;
  }
  editor_.remove_command(edit.name, edit.occurrence);
  origins_ = std::move(kept);
}

void TrackedDocument::perform(const SetChargeAndMultiplicity& edit) {
  const GeometryBlock& geometry = document().geometry;
  editor_.set_charge_and_multiplicity(edit.charge.value_or(geometry.charge),
                                      edit.multiplicity.value_or(geometry.multiplicity));
}

void TrackedDocument::perform(const ClearChargeAndMultiplicity& /*edit*/) {
  editor_.clear_charge_and_multiplicity();
}

void TrackedDocument::perform(const SetAtoms& edit) { editor_.set_geometry(edit.atoms); }

void TrackedDocument::perform(const SetXyzFiles& edit) { editor_.set_xyz_files(edit.files); }

void TrackedDocument::perform(const SetTrajectory& edit) { editor_.set_xyz_trajectory(edit.path); }

void TrackedDocument::perform(const AddPostCommand& edit) {
  editor_.add_post_command(edit.command);
}

}  // namespace kelp::input::quill::edit_support
