#ifndef KELP_INPUT_QUILL_EDIT_SUPPORT_SURGICAL_EDIT_HPP
#define KELP_INPUT_QUILL_EDIT_SUPPORT_SURGICAL_EDIT_HPP

// Changing a text in the lines that must change and in no other byte.
//
//   const SurgicalEdit edit =
//       edit_text(text, {SetParameter{"opt", "maxiter", "100"}, SetAssignment{"model", "m2"}});
//   if (!edit.holds()) return refuse(edit.refusal());
//   write(edit.text);
//
// Layout, digits, blank lines, lines that the reader drops and line ends stay as they are, a
// missing last line end included. A changed header line is the library's to_string() of the
// command, its values spelled so that they read back. New lines take the line end of the line in
// front of them, or of the first line if there is none. A header line stands after the last header
// line, or in the place of one that was removed there; charge and multiplicity stand before the
// coordinates, and post-processing lines after the last line that is not blank. Where a section
// comes into being, an empty line separates it from its neighbours. When the coordinates change,
// atoms and references that stay the same keep their lines, as far as they stand at either end of
// the list or in the same place.
//
// The edits are those of InputEditor, with its rules for what is found and what is created. All of
// them together make one new text or, if that cannot be proved, none that should be used.

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "edit_support/proof.hpp"
#include "kelp/input/quill/document.hpp"

namespace kelp::input::quill::edit_support {

/// InputEditor::set_flag(name).
struct SetFlag {
  std::string name = {};
};

/// InputEditor::set_assignment(name, value).
struct SetAssignment {
  std::string name = {};
  std::string value = {};
};

/// InputEditor::set_task(name, parameters).
struct SetTask {
  std::string name = {};
  std::vector<CommandParameter> parameters = {};
};

/// InputEditor::set_parameter(command, parameter, value, occurrence).
struct SetParameter {
  std::string command = {};
  std::string parameter = {};
  std::string value = {};
  std::uint64_t occurrence = 0;
};

/// InputEditor::remove_parameter(command, parameter, occurrence). No such parameter is no error.
struct RemoveParameter {
  std::string command = {};
  std::string parameter = {};
  std::uint64_t occurrence = 0;
};

/// InputEditor::add_command(command).
struct AddCommand {
  HeaderCommand command = {};
};

/// InputEditor::remove_command(name, occurrence): without an occurrence, all of the name. No such
/// command is no error.
struct RemoveCommand {
  std::string name = {};
  std::optional<std::uint64_t> occurrence = std::nullopt;
};

/// InputEditor::set_charge_and_multiplicity(). A number that is absent stays as it is in the
/// document, 0 and 1 when there was no such line.
struct SetChargeAndMultiplicity {
  std::optional<std::int32_t> charge = std::nullopt;
  std::optional<std::int32_t> multiplicity = std::nullopt;
};

/// InputEditor::clear_charge_and_multiplicity().
struct ClearChargeAndMultiplicity {};

/// InputEditor::set_geometry(atoms). The reader writes symbols with one capital letter; others,
/// "cl" for one, do not read back as they are.
struct SetAtoms {
  std::vector<AtomRecord> atoms = {};
};

/// InputEditor::set_xyz_files(files).
struct SetXyzFiles {
  std::vector<std::string> files = {};
};

/// InputEditor::set_xyz_trajectory(path).
struct SetTrajectory {
  std::string path = {};
};

/// InputEditor::add_post_command(command).
struct AddPostCommand {
  PostCommand command = {};
};

using Edit =
    std::variant<SetFlag, SetAssignment, SetTask, SetParameter, RemoveParameter, AddCommand,
                 RemoveCommand, SetChargeAndMultiplicity, ClearChargeAndMultiplicity, SetAtoms,
                 SetXyzFiles, SetTrajectory, AddPostCommand>;

/// One line that is not as before: changed when it has both numbers, added without the old one,
/// removed without the new one. Numbers count from 1 in the respective text.
struct LineChange {
  std::optional<std::size_t> old_line = std::nullopt;
  std::optional<std::size_t> new_line = std::nullopt;
};

/// What edits make of a text. All members are there whether the proof holds or not, so that a
/// caller who accepts a loss can go on; `text` then is what comes closest.
struct SurgicalEdit {
  /// The new text.
  std::string text = {};
  /// The document that the edits make of the old text's document.
  QuillInput meant = {};
  /// Every line that is not as before, in the order of the new text, a removed line where it stood.
  /// All other lines stand in both texts, in the same order and byte for byte, but for one line
  /// end: that which a text without a last line end needs when a line is put after its last line,
  /// and loses when its last line goes.
  std::vector<LineChange> changes = {};
  /// Why values or names of changed header lines cannot be spelled; empty when all can.
  std::vector<std::string> spelling_reasons = {};
  /// What a changed header line held besides its command and holds no more, in words: text after
  /// the closing parenthesis, which the reader had warned about.
  std::vector<std::string> notes = {};
  /// Whether `text` reads back as `meant`.
  Proof proof = {};

  bool holds() const { return proof.holds(); }

  /// Returns why the edit should not be used, the reason of a spelling before that of the proof, or
  /// the empty text when the proof holds.
  std::string refusal() const;
};

/// Applies the edits one after another to the document of `text` and changes the text accordingly.
/// Numbers may change by up to `max_change`, see compare().
SurgicalEdit edit_text(std::string_view text, const std::vector<Edit>& edits,
                       double max_change = 0.0);

}  // namespace kelp::input::quill::edit_support

#endif  // KELP_INPUT_QUILL_EDIT_SUPPORT_SURGICAL_EDIT_HPP
