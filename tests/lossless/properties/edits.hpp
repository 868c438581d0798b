#ifndef KELP_INPUT_QUILL_TESTS_LOSSLESS_PROPERTIES_EDITS_HPP
#define KELP_INPUT_QUILL_TESTS_LOSSLESS_PROPERTIES_EDITS_HPP

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include "kelp/input/quill/editor.hpp"
#include "kelp/input/quill/lossless/surgical_edit.hpp"

// The operations of an editor as values, for tables of edits and for edits that are made at random.
// Each does the same to an editor and to a tracked document.

namespace kelp::input::quill::lossless {

struct SetFlag {
  std::string name;

  template <typename Document>
  void operator()(Document& document) const {
    document.set_flag(name);
  }
};

struct SetAssignment {
  std::string name;
  std::string value;

  template <typename Document>
  void operator()(Document& document) const {
    document.set_assignment(name, value);
  }
};

struct SetTask {
  std::string name;
  std::vector<CommandParameter> parameters = {};

  template <typename Document>
  void operator()(Document& document) const {
    document.set_task(name, parameters);
  }
};

struct SetParameter {
  std::string command;
  std::string parameter;
  std::string value;
  std::uint64_t occurrence = 0;

  template <typename Document>
  void operator()(Document& document) const {
    document.set_parameter(command, parameter, value, occurrence);
  }
};

struct RemoveParameter {
  std::string command;
  std::string parameter;
  std::uint64_t occurrence = 0;

  template <typename Document>
  void operator()(Document& document) const {
    document.remove_parameter(command, parameter, occurrence);
  }
};

struct AddCommand {
  HeaderCommand command;

  template <typename Document>
  void operator()(Document& document) const {
    document.add_command(command);
  }
};

struct RemoveCommand {
  std::string name;
  std::optional<std::uint64_t> occurrence = std::nullopt;

  template <typename Document>
  void operator()(Document& document) const {
    document.remove_command(name, occurrence);
  }
};

/// A number that is absent stays as it is.
struct SetChargeAndMultiplicity {
  std::optional<std::int32_t> charge = std::nullopt;
  std::optional<std::int32_t> multiplicity = std::nullopt;

  template <typename Document>
  void operator()(Document& document) const {
    const GeometryBlock& geometry = document.document().geometry;
    document.set_charge_and_multiplicity(charge.value_or(geometry.charge),
                                         multiplicity.value_or(geometry.multiplicity));
  }
};

struct ClearChargeAndMultiplicity {
  template <typename Document>
  void operator()(Document& document) const {
    document.clear_charge_and_multiplicity();
  }
};

struct SetAtoms {
  std::vector<AtomRecord> atoms = {};

  template <typename Document>
  void operator()(Document& document) const {
    document.set_geometry(atoms);
  }
};

struct SetXyzFiles {
  std::vector<std::string> files = {};

  template <typename Document>
  void operator()(Document& document) const {
    document.set_xyz_files(files);
  }
};

struct SetTrajectory {
  std::string path;

  template <typename Document>
  void operator()(Document& document) const {
    document.set_xyz_trajectory(path);
  }
};

struct AddPostCommand {
  PostCommand command;

  template <typename Document>
  void operator()(Document& document) const {
    document.add_post_command(command);
  }
};

/// Changes nothing if the index is not below the number of commands.
struct ReplaceCommand {
  std::size_t index = 0;
  HeaderCommand command;

  void operator()(TrackedDocument& document) const;
  void operator()(InputEditor& editor) const;
};

/// The first of all edits. Lines after the last one that the list speaks of stay.
struct RemovePostCommands {
  std::vector<bool> is_removed = {};

  void operator()(TrackedDocument& document) const;
  void operator()(InputEditor& editor) const;
};

/// Any of them.
class Edit {
 public:
  template <typename Operation,
            typename = std::enable_if_t<!std::is_same_v<std::decay_t<Operation>, Edit>>>
  Edit(Operation operation) : on_tracked_document_(operation), on_editor_(std::move(operation)) {}

  void apply(TrackedDocument& document) const { on_tracked_document_(document); }
  void apply(InputEditor& editor) const { on_editor_(editor); }

 private:
  std::function<void(TrackedDocument&)> on_tracked_document_;
  std::function<void(InputEditor&)> on_editor_;
};

/// What edits make of a text, and the document that they make of its document.
struct EditOutcome : SurgicalEdit {
  QuillInput wanted = {};

  bool holds() const { return proof.holds(); }

  /// The words for what cannot be written.
  std::vector<std::string> problems() const;

  /// Why the text should not be used, a problem of quoting before that of the proof; empty when the
  /// proof holds.
  std::string refusal() const;
};

/// Makes the edits one after another.
EditOutcome edit_text(const std::string& text, const std::vector<Edit>& edits,
                      double max_change = 0.0);

}  // namespace kelp::input::quill::lossless

#endif  // KELP_INPUT_QUILL_TESTS_LOSSLESS_PROPERTIES_EDITS_HPP
