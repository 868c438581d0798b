#ifndef KELP_INPUT_QUILL_EDITOR_HPP
#define KELP_INPUT_QUILL_EDITOR_HPP

/// @file
/// Changing a QUILL input in place.
///
///     InputEditor editor(parse_file("water.qin").input);
///     editor.set_parameter("opt", "maxiter", "100");
///     editor.write_file("water.qin");
///
/// Command names are matched as normalize_command_name() has it, so that "OPT" finds "opt";
/// parameter names are matched trimmed and in lower case. What is stored is what was passed:
/// nothing is trimmed, unquoted or checked. What is missing is created, and not finding something
/// is no error. Arguments may point into the editor's own document. An editor may be used by one
/// thread at a time; distinct editors are independent.
///
/// A view that has a length and no data cannot be stored: a function that is to make a name, a
/// value or a path of it throws std::logic_error, "basic_string: construction from null is not
/// valid". No such view can be looked for.
///
/// When that ends a call, or memory runs out, the document stays valid; unless a function says
/// otherwise, it is then as before the call, except that a command which the call had to create
/// first may be there.

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "kelp/input/quill/document.hpp"
#include "kelp/input/quill/export.hpp"

namespace kelp::core {
struct Atom;
struct Geometry;
}  // namespace kelp::core

namespace kelp::input::quill {

/// Owns a document and changes it by named operations.
class InputEditor {
 public:
  /// Takes the document over as it is; nothing in it is checked or put in order.
  KELP_QUILL_INP_EXPORT explicit InputEditor(QuillInput input);

  /// Returns the document, valid as long as the editor; from an editor that is about to go, moves
  /// it out.
  const QuillInput& document() const& noexcept { return document_; }
  QuillInput document() && { return std::move(document_); }

  /// Returns the document's canonical text, as QuillInput::to_string().
  KELP_QUILL_INP_EXPORT std::string to_string() const;

  /// Writes the canonical text into a file, as QuillInput::write_file().
  KELP_QUILL_INP_EXPORT void write_file(const std::string& path) const;

  /// Returns what QuillInput::has_command() does.
  KELP_QUILL_INP_EXPORT bool has_command(std::string_view name) const;

  /// Returns what QuillInput::has_task_command() does.
  KELP_QUILL_INP_EXPORT bool has_task_command() const;

  /// Returns what QuillInput::command_names() does.
  KELP_QUILL_INP_EXPORT std::vector<std::string> command_names() const;

  /// Returns the value of the first command named `name` if that is an assignment with a value, and
  /// nothing otherwise. Later commands of the name are not looked at.
  KELP_QUILL_INP_EXPORT std::optional<std::string> get_assignment(std::string_view name) const;

  /// Return get_assignment("model") and get_assignment("device").
  KELP_QUILL_INP_EXPORT std::optional<std::string> model() const;
  KELP_QUILL_INP_EXPORT std::optional<std::string> device() const;

  /// Returns the value of the first parameter named `parameter_name` of command number
  /// `occurrence`, counted from 0, among those named `command_name`, whatever its kind. Returns
  /// nothing when the command or the parameter is missing or the parameter has no value.
  KELP_QUILL_INP_EXPORT std::optional<std::string> get_parameter(
      std::string_view command_name, std::string_view parameter_name,
      std::uint64_t occurrence = 0) const;

  /// Makes the first command named `name` a flag without value and parameters.
  KELP_QUILL_INP_EXPORT void set_flag(std::string_view name);

  /// Makes the first command named `name` an assignment of `value`, without parameters. An empty
  /// value is present all the same.
  KELP_QUILL_INP_EXPORT void set_assignment(std::string_view name, std::string_view value);

  /// Assign `value` to "model" and to "device", as set_assignment() does.
  KELP_QUILL_INP_EXPORT void set_model(std::string_view value);
  KELP_QUILL_INP_EXPORT void set_device(std::string_view value);

  /// Gives the first command named `name` exactly these parameters and no value: a parameter list,
  /// or a flag when there are none. Tasks of other names stay.
  KELP_QUILL_INP_EXPORT void set_task(std::string_view name,
                                      std::vector<CommandParameter> parameters = {});

  /// Sets a parameter of command number `occurrence`, counted from 0, among those named
  /// `command_name`, and makes that command a parameter list without a value. The first parameter
  /// of the name gets the value and keeps its spelling; if there is none, one is appended.
  ///
  /// When there are not so many commands of the name, the parameter is appended to the first one,
  /// or to a new one, without a look at the parameters it has: the first command may then have two
  /// of the same name.
  KELP_QUILL_INP_EXPORT void set_parameter(std::string_view command_name,
                                           std::string_view parameter_name, std::string_view value,
                                           std::uint64_t occurrence = 0);

  /// Removes the first parameter named `parameter_name` of command number `occurrence`, counted
  /// from 0, among those named `command_name`, and returns whether there was one. A parameter list
  /// that loses its last parameter becomes a flag.
  KELP_QUILL_INP_EXPORT bool remove_parameter(std::string_view command_name,
                                              std::string_view parameter_name,
                                              std::uint64_t occurrence = 0);

  /// Removes one command, or all of a name, and returns whether there was one, as
  /// QuillInput::remove_command().
  KELP_QUILL_INP_EXPORT bool remove_command(std::string_view name,
                                            std::optional<std::uint64_t> occurrence = std::nullopt);

  /// Appends a command as it is, be there others of its name or not.
  KELP_QUILL_INP_EXPORT void add_command(HeaderCommand&& command);
  KELP_QUILL_INP_EXPORT void add_command(const HeaderCommand& command);

  /// Sets both numbers, of any value, and with them the line that carries them. The geometry's kind
  /// and content stay.
  KELP_QUILL_INP_EXPORT void set_charge_and_multiplicity(int charge, int multiplicity);

  /// Takes the line away and sets the charge to 0 and the multiplicity to 1.
  KELP_QUILL_INP_EXPORT void clear_charge_and_multiplicity();

  /// Replaces the geometry by a copy of these atoms, or of the core library's, in order; symbols
  /// are not normalised. Charge, multiplicity and post-processing lines stay, in this and in all
  /// functions that change the geometry. When memory runs out the kind may have been set already.
  KELP_QUILL_INP_EXPORT void set_geometry(const std::vector<AtomRecord>& atoms);
  KELP_QUILL_INP_EXPORT void set_geometry(const kelp::core::Geometry& geometry);

  /// Replaces the geometry by references to any number of XYZ files, to one, and to a trajectory.
  /// When memory runs out the kind may have been set and the atoms removed already. So it is after
  /// a path of set_xyz_trajectory() without data; for the same reason that path must not be a view
  /// of an atom's symbol.
  KELP_QUILL_INP_EXPORT void set_xyz_files(const std::vector<std::string>& files);
  KELP_QUILL_INP_EXPORT void set_xyz_file(std::string_view path);
  KELP_QUILL_INP_EXPORT void set_xyz_trajectory(std::string_view path);

  /// Appends a copy of one atom to the inline atoms. A geometry of another kind is first replaced
  /// by one of no atoms, so that a reference to a file is gone. Amortised constant time.
  KELP_QUILL_INP_EXPORT void add_atom(const AtomRecord& atom);
  KELP_QUILL_INP_EXPORT void add_atom(const kelp::core::Atom& atom);

  /// Appends a post-processing line as it is, equal ones included.
  KELP_QUILL_INP_EXPORT void add_post_command(const PostCommand& command);
  KELP_QUILL_INP_EXPORT void add_post_command(PostCommand&& command);

  /// Removes every post-processing line.
  KELP_QUILL_INP_EXPORT void clear_post_commands();

  /// Append a constraint on one to four atoms, numbered as in the file and not checked. Equal lines
  /// are repeated, not merged, here and in the two functions that follow.
  KELP_QUILL_INP_EXPORT void add_atom_constraint(int a);
  KELP_QUILL_INP_EXPORT void add_bond_constraint(int a, int b);
  KELP_QUILL_INP_EXPORT void add_angle_constraint(int a, int b, int c);
  KELP_QUILL_INP_EXPORT void add_dihedral_constraint(int a, int b, int c, int d);

  /// Appends a scan with its value and number of steps. Two atoms name a bond, three an angle, four
  /// a dihedral; any number is stored.
  KELP_QUILL_INP_EXPORT void add_scan(const std::vector<int>& atoms, double value, int steps);

  /// Appends a post-processing file; earlier ones stay.
  KELP_QUILL_INP_EXPORT void set_post_file(std::string_view path);

 private:
  QuillInput document_;
};

}  // namespace kelp::input::quill

#endif  // KELP_INPUT_QUILL_EDITOR_HPP
