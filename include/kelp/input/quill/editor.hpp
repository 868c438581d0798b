#ifndef KELP_INPUT_QUILL_EDITOR_HPP
#define KELP_INPUT_QUILL_EDITOR_HPP

/// @file
/// Changing a QUILL input in place.
///
///     InputEditor editor(parse_file("water.qin").input);
///     editor.set_parameter("opt", "maxiter", "100");
///     editor.write_file("water.qin");
///
/// Command names are compared as normalize_command_name() returns them, so that "OPT" finds "opt";
/// parameter names are compared trimmed and in lower case. Arguments are stored exactly as passed:
/// nothing is trimmed, unquoted or checked. A missing command or parameter is created, and it is
/// not an error when there is nothing to remove. Arguments may point into the editor's own
/// document. An editor may be used by one thread at a time; distinct editors are independent.
///
/// A view that has a length but a null pointer as its data cannot be stored: a function that makes
/// a name, a value or a path of it throws std::logic_error, "basic_string: construction from null
/// is not valid". Such a view must not be passed as a name to look up.
///
/// When a call ends with that exception, or memory runs out, the document stays valid. Unless the
/// function's comment says something else, the document is then as it was before the call, except
/// that it may have a new command which the call had to create first.

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "kelp/input/quill/document.hpp"
#include "kelp/input/quill/export.hpp"
#include "kelp/input/quill/text_argument.hpp"

namespace kelp::core {
struct Atom;
struct Geometry;
}  // namespace kelp::core

namespace kelp::input::quill {

/// Owns a document and changes it by named operations.
class InputEditor {
 public:
  /// Takes the document as it is; nothing in it is checked or reordered.
  KELP_QUILL_INP_EXPORT explicit InputEditor(QuillInput input);

  /// Returns the document, valid as long as the editor exists; for an rvalue, moves it out of the
  /// editor.
  [[nodiscard]] const QuillInput& document() const& noexcept { return document_; }
  [[nodiscard]] QuillInput document() && { return std::move(document_); }

  /// Returns the document's canonical text, as QuillInput::to_string().
  [[nodiscard]] KELP_QUILL_INP_EXPORT std::string to_string() const;

  /// Writes the canonical text into a file, as QuillInput::write_file().
  KELP_QUILL_INP_EXPORT void write_file(const std::string& path) const;

  /// Returns what QuillInput::has_command() returns.
  [[nodiscard]] KELP_QUILL_INP_EXPORT bool has_command(std::string_view name) const;

  /// Returns what QuillInput::has_task_command() returns.
  [[nodiscard]] KELP_QUILL_INP_EXPORT bool has_task_command() const;

  /// Returns what QuillInput::command_names() returns.
  [[nodiscard]] KELP_QUILL_INP_EXPORT std::vector<std::string> command_names() const;

  /// Returns the value of the first command named `name` if that is an assignment with a value, or
  /// nothing if it is not. Later commands with this name are ignored.
  [[nodiscard]] KELP_QUILL_INP_EXPORT std::optional<std::string> get_assignment(
      std::string_view name) const;

  /// Returns get_assignment("model"): `m1` when the line is `#model = m1`.
  [[nodiscard]] KELP_QUILL_INP_EXPORT std::optional<std::string> model() const;

  /// Returns get_assignment("device"): `gpu0` when the line is `#device = gpu0`.
  [[nodiscard]] KELP_QUILL_INP_EXPORT std::optional<std::string> device() const;

  /// Returns the value of the first parameter named `parameter_name` of command number
  /// `occurrence`, counted from 0, among those named `command_name`, of any kind. Returns nothing
  /// when the command or the parameter is missing or the parameter has no value.
  [[nodiscard]] KELP_QUILL_INP_EXPORT std::optional<std::string> get_parameter(
      std::string_view command_name, std::string_view parameter_name,
      std::uint64_t occurrence = 0) const;

  /// Makes the first command named `name` a flag without value and parameters: `#name`.
  KELP_QUILL_INP_EXPORT void set_flag(std::string_view name);

  /// Makes the first command named `name` an assignment of `value`, without parameters:
  /// `#name = value`. An empty value is stored as a value.
  KELP_QUILL_INP_EXPORT void set_assignment(std::string_view name, std::string_view value);

  /// Makes the first command named "model" the line `#model = value`, as set_assignment() does.
  KELP_QUILL_INP_EXPORT void set_model(std::string_view value);

  /// Makes the first command named "device" the line `#device = value`, as set_assignment() does.
  KELP_QUILL_INP_EXPORT void set_device(std::string_view value);

  /// Gives the first command named `name` exactly these parameters and no value: a parameter list,
  /// `#name(parameter, parameter=value)`, or the flag `#name` without any. Tasks with other names
  /// stay.
  KELP_QUILL_INP_EXPORT void set_task(std::string_view name,
                                      std::vector<CommandParameter> parameters = {});

  /// Sets a parameter of command number `occurrence`, counted from 0, among those named
  /// `command_name`, and makes that command a parameter list without a value:
  /// `#command_name(parameter_name=value)`, among the parameters that it has. The first parameter
  /// with this name gets the value and keeps its spelling; if there is none, one is appended.
  ///
  /// When there are fewer commands with this name, the parameter is appended to the first of them,
  /// or to a new one, without a check of the parameters it has: the first command may then have two
  /// with the same name.
  KELP_QUILL_INP_EXPORT void set_parameter(std::string_view command_name,
                                           std::string_view parameter_name, std::string_view value,
                                           std::uint64_t occurrence = 0);

  /// Removes the first parameter named `parameter_name` of command number `occurrence`, counted
  /// from 0, among those named `command_name`, and returns whether there was one. A parameter list
  /// that loses its last parameter becomes a flag.
  KELP_QUILL_INP_EXPORT bool remove_parameter(std::string_view command_name,
                                              std::string_view parameter_name,
                                              std::uint64_t occurrence = 0);

  /// Removes one command, or all with this name, and returns whether there was one, as
  /// QuillInput::remove_command() does.
  KELP_QUILL_INP_EXPORT bool remove_command(std::string_view name,
                                            std::optional<std::uint64_t> occurrence = std::nullopt);

  /// Appends a command as it is, even if there are others with its name.
  KELP_QUILL_INP_EXPORT void add_command(HeaderCommand&& command);
  KELP_QUILL_INP_EXPORT void add_command(const HeaderCommand& command);

  /// Sets both numbers, which are not checked, and adds their line, `charge multiplicity`. The
  /// geometry's kind and content stay.
  KELP_QUILL_INP_EXPORT void set_charge_and_multiplicity(int charge, int multiplicity);

  /// Removes the line of charge and multiplicity, and sets the charge to 0 and the multiplicity
  /// to 1.
  KELP_QUILL_INP_EXPORT void clear_charge_and_multiplicity();

  /// Replaces the geometry by a copy of these atoms, in order, one line `symbol x y z` each;
  /// symbols are not normalised. Charge, multiplicity and post-processing lines stay, in this and
  /// in all functions that change the geometry. When memory runs out, the kind may have been set
  /// already.
  KELP_QUILL_INP_EXPORT void set_geometry(const std::vector<AtomRecord>& atoms);
  KELP_QUILL_INP_EXPORT void set_geometry(const kelp::core::Geometry& geometry);

  /// Replaces the geometry by references to any number of XYZ files, one line `XYZ path` each, in
  /// order. When memory runs out, the kind may have been set and the atoms removed already.
  KELP_QUILL_INP_EXPORT void set_xyz_files(const std::vector<std::string>& files);

  /// Replaces the geometry by a reference to one XYZ file, the line `XYZ path`. When memory runs
  /// out, the document is left as by set_xyz_files().
  KELP_QUILL_INP_EXPORT void set_xyz_file(std::string_view path);

  /// Replaces the geometry by a reference to a trajectory, the line `XYZTRAJ path`. When memory
  /// runs out, or the path has a null pointer as its data, the kind may have been set and the atoms
  /// removed already. Since the atoms are removed first, the path must not be a view of an atom's
  /// symbol.
  KELP_QUILL_INP_EXPORT void set_xyz_trajectory(std::string_view path);

  /// Appends a copy of one atom to the inline atoms, the line `symbol x y z`. A geometry of another
  /// kind is first replaced by an empty list of atoms, which removes all references to files.
  /// Amortised constant time.
  KELP_QUILL_INP_EXPORT void add_atom(const AtomRecord& atom);
  KELP_QUILL_INP_EXPORT void add_atom(const kelp::core::Atom& atom);

  /// Appends a post-processing line as it is, even if there is an equal one.
  KELP_QUILL_INP_EXPORT void add_post_command(const PostCommand& command);
  KELP_QUILL_INP_EXPORT void add_post_command(PostCommand&& command);

  /// Removes every post-processing line.
  KELP_QUILL_INP_EXPORT void clear_post_commands();

  /// Appends the line `C a`, which fixes the position of atom `a`. Atoms are numbered as in the
  /// file; in this and in all functions that append a constraint or a scan, numbers are not
  /// checked, and a line that is there already is appended again.
  KELP_QUILL_INP_EXPORT void add_atom_constraint(int a);

  /// Appends the line `B a b`, which fixes the distance between atoms `a` and `b`.
  KELP_QUILL_INP_EXPORT void add_bond_constraint(int a, int b);

  /// Appends the line `A a b c`, which fixes the angle between atoms `a` and `c` at its vertex `b`.
  KELP_QUILL_INP_EXPORT void add_angle_constraint(int a, int b, int c);

  /// Appends the line `D a b c d`, which fixes the dihedral angle about the bond of atoms `b` and
  /// `c`.
  KELP_QUILL_INP_EXPORT void add_dihedral_constraint(int a, int b, int c, int d);

  /// Appends the line `S`, the atoms, `value` and `steps`: `S a b value steps` scans a bond, with
  /// three atoms an angle, with four a dihedral. The count of atoms is not checked. The value is
  /// written with up to six significant digits.
  KELP_QUILL_INP_EXPORT void add_scan(const std::vector<int>& atoms, double value, int steps);

  /// Appends the line `POST path`; earlier ones stay.
  KELP_QUILL_INP_EXPORT void set_post_file(std::string_view path);

  // Null pointers and numbers are not texts; text_argument.hpp says more.
  template <typename Path, typename = RefusedAsText<Path>>
  void write_file(Path) const = delete;
  template <typename Name, typename = RefusedAsText<Name>>
  void has_command(Name) const = delete;
  template <typename Name, typename = RefusedAsText<Name>>
  void get_assignment(Name) const = delete;
  template <typename Command, typename Parameter, typename = RefusedAsText<Command, Parameter>>
  void get_parameter(Command, Parameter, std::uint64_t = 0) const = delete;
  template <typename Name, typename = RefusedAsText<Name>>
  void set_flag(Name) = delete;
  template <typename Name, typename Value, typename = RefusedAsText<Name, Value>>
  void set_assignment(Name, Value) = delete;
  template <typename Value, typename = RefusedAsText<Value>>
  void set_model(Value) = delete;
  template <typename Value, typename = RefusedAsText<Value>>
  void set_device(Value) = delete;
  template <typename Name, typename = RefusedAsText<Name>>
  void set_task(Name, std::vector<CommandParameter> = {}) = delete;
  template <typename Command, typename Parameter, typename Value,
            typename = RefusedAsText<Command, Parameter, Value>>
  void set_parameter(Command, Parameter, Value, std::uint64_t = 0) = delete;
  template <typename Command, typename Parameter, typename = RefusedAsText<Command, Parameter>>
  void remove_parameter(Command, Parameter, std::uint64_t = 0) = delete;
  template <typename Name, typename = RefusedAsText<Name>>
  void remove_command(Name, std::optional<std::uint64_t> = std::nullopt) = delete;
  template <typename Path, typename = RefusedAsText<Path>>
  void set_xyz_file(Path) = delete;
  template <typename Path, typename = RefusedAsText<Path>>
  void set_xyz_trajectory(Path) = delete;
  template <typename Path, typename = RefusedAsText<Path>>
  void set_post_file(Path) = delete;

 private:
  QuillInput document_;
};

}  // namespace kelp::input::quill

#endif  // KELP_INPUT_QUILL_EDITOR_HPP
