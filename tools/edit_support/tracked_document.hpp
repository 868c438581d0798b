#ifndef KELP_INPUT_QUILL_EDIT_SUPPORT_TRACKED_DOCUMENT_HPP
#define KELP_INPUT_QUILL_EDIT_SUPPORT_TRACKED_DOCUMENT_HPP

#include <cstddef>
#include <optional>
#include <vector>

#include "edit_support/surgical_edit.hpp"
#include "kelp/input/quill/editor.hpp"

namespace kelp::input::quill::edit_support {

/// A document under edit that knows of every command where it came from, so that of two equal
/// commands the right one loses its line.
class TrackedDocument {
 public:
  explicit TrackedDocument(QuillInput input);

  void apply(const Edit& edit);

  const QuillInput& document() const { return editor_.document(); }

  /// For each command of the document, its index in the document before all edits; nothing for one
  /// that was added.
  const std::vector<std::optional<std::size_t>>& origins() const { return origins_; }

 private:
  void perform(const SetFlag& edit);
  void perform(const SetAssignment& edit);
  void perform(const SetTask& edit);
  void perform(const SetParameter& edit);
  void perform(const RemoveParameter& edit);
  void perform(const AddCommand& edit);
  void perform(const RemoveCommand& edit);
  void perform(const SetChargeAndMultiplicity& edit);
  void perform(const ClearChargeAndMultiplicity& edit);
  void perform(const SetAtoms& edit);
  void perform(const SetXyzFiles& edit);
  void perform(const SetTrajectory& edit);
  void perform(const AddPostCommand& edit);

  InputEditor editor_;
  std::vector<std::optional<std::size_t>> origins_;
};

}  // namespace kelp::input::quill::edit_support

#endif  // KELP_INPUT_QUILL_EDIT_SUPPORT_TRACKED_DOCUMENT_HPP
