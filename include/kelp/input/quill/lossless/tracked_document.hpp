#ifndef KELP_INPUT_QUILL_LOSSLESS_TRACKED_DOCUMENT_HPP
#define KELP_INPUT_QUILL_LOSSLESS_TRACKED_DOCUMENT_HPP

/// @file
/// A document that is edited together with its text.
///
///     const ReadText read = read_text("#sp\n#model = m1\n#sp\n");
///     TrackedDocument document(read.result.input);
///     document.remove_command("sp", 1);
///     render(read, document).text;  // "#sp\n#model = m1\n"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

#include "kelp/input/quill/editor.hpp"
#include "kelp/input/quill/lossless/export.hpp"

namespace kelp::input::quill::lossless {

/// A document that is being edited. It knows where every command came from, so that the right one
/// of two equal commands loses its line. The operations are those of InputEditor, with its rules
/// for what is found and what is created.
class TrackedDocument : private InputEditor {
 public:
  /// Begins to edit a document, which the text that is to be changed was read as.
  KELP_QUILL_LOSSLESS_EXPORT explicit TrackedDocument(QuillInput input);

  using InputEditor::add_angle_constraint;
  using InputEditor::add_atom;
  using InputEditor::add_atom_constraint;
  using InputEditor::add_bond_constraint;
  using InputEditor::add_command;
  using InputEditor::add_dihedral_constraint;
  using InputEditor::add_post_command;
  using InputEditor::add_scan;
  using InputEditor::clear_charge_and_multiplicity;
  using InputEditor::get_assignment;
  using InputEditor::get_parameter;
  using InputEditor::remove_parameter;
  using InputEditor::set_assignment;
  using InputEditor::set_charge_and_multiplicity;
  using InputEditor::set_device;
  using InputEditor::set_flag;
  using InputEditor::set_geometry;
  using InputEditor::set_model;
  using InputEditor::set_parameter;
  using InputEditor::set_post_file;
  using InputEditor::set_task;
  using InputEditor::set_xyz_file;
  using InputEditor::set_xyz_files;
  using InputEditor::set_xyz_trajectory;

  /// Removes commands as InputEditor::remove_command() does: all of the name, or one of them.
  KELP_QUILL_LOSSLESS_EXPORT bool remove_command(
      std::string_view name, std::optional<std::uint64_t> occurrence = std::nullopt);

  /// Puts another command in the place of the one with this index, which keeps its origin.
  KELP_QUILL_LOSSLESS_EXPORT void replace_command(std::size_t index, HeaderCommand command);

  /// Removes post-processing lines. `is_removed` has an entry for each line of the document before
  /// all edits. To be called at most once, and before lines are added.
  KELP_QUILL_LOSSLESS_EXPORT void remove_post_commands(std::vector<bool> is_removed);

  /// Removes every post-processing line, those that were added included. May be called at any time.
  void clear_post_commands() {
    const std::size_t count =
        std::max(document().post_commands.size(), is_post_command_removed_.size());
    remove_post_commands(std::vector<bool>(count, true));
  }

  /// Returns the document as it is now. The reference stays valid as long as this object.
  const QuillInput& document() const { return InputEditor::document(); }

  /// Returns, for each command of the document, its index in the document before all edits; nothing
  /// for one that was added.
  KELP_QUILL_LOSSLESS_EXPORT std::vector<std::optional<std::size_t>> origins() const;

  /// Returns whether the post-processing line with this index in the document before all edits was
  /// removed. Those that were not are the first ones of the document, in their order.
  KELP_QUILL_LOSSLESS_EXPORT bool is_post_command_removed(std::size_t index) const;

 private:
  /// Shorter than the list of commands if some were added: commands are only added at the end.
  std::vector<std::optional<std::size_t>> origins_;
  /// Empty if none was removed.
  std::vector<bool> is_post_command_removed_;
};

}  // namespace kelp::input::quill::lossless

#endif  // KELP_INPUT_QUILL_LOSSLESS_TRACKED_DOCUMENT_HPP
