#ifndef KELP_INPUT_QUILL_BUILDER_HPP
#define KELP_INPUT_QUILL_BUILDER_HPP

/// @file
/// Building a new QUILL input in one chain of calls.
///
///     const std::string text = InputBuilder()
///                                  .set_task("opt", {{"maxiter", "50"}, {"tight"}})
///                                  .set_model("m1")
///                                  .set_charge_and_multiplicity(0, 1)
///                                  .set_xyz_file("water.xyz")
///                                  .to_string();
///
/// Every operation does what the InputEditor operation of the same name does, and the result is the
/// document that the same calls of an editor would give. Each operation either succeeds or leaves
/// the builder's document as it was, with one exception: an operation ends with a copy, which may
/// run out of memory half-way. Every call copies the document twice unless its comment says that it
/// makes no copy: to add thousands of atoms one by one, use an InputEditor, or set_geometry() once.
///
/// A builder may be used by one thread at a time; distinct builders are independent.

#include <string>
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

/// Owns a document, empty at first, and builds it up.
class InputBuilder {
 public:
  InputBuilder() = default;

  /// Returns the document, valid as long as the builder exists; for an rvalue, moves it out of the
  /// builder.
  [[nodiscard]] const QuillInput& document() const& noexcept { return document_; }
  [[nodiscard]] QuillInput document() && { return std::move(document_); }

  /// Returns the document's canonical text, as QuillInput::to_string().
  [[nodiscard]] KELP_QUILL_INP_EXPORT std::string to_string() const;

  /// Writes the canonical text into a file, as QuillInput::write_file().
  KELP_QUILL_INP_EXPORT void write_file(const std::string& path) const;

  /// Makes the first command named `name` the parameter list `#name(parameter, parameter=value)`,
  /// or the flag `#name` without any parameter.
  KELP_QUILL_INP_EXPORT InputBuilder& set_task(std::string name,
                                               std::vector<CommandParameter> parameters = {});

  /// Sets one parameter of the first command named `command`, and makes that a parameter list:
  /// `#command(key=value)`, among the parameters that it has. The first parameter named `key` gets
  /// the value and keeps its spelling; if there is none, one is appended.
  KELP_QUILL_INP_EXPORT InputBuilder& set_task_parameter(std::string command, std::string key,
                                                         std::string value);

  /// Makes the first command named "model" the line `#model = value`.
  KELP_QUILL_INP_EXPORT InputBuilder& set_model(std::string value);

  /// Makes the first command named "device" the line `#device = value`.
  KELP_QUILL_INP_EXPORT InputBuilder& set_device(std::string value);

  /// Makes the first command named `name` the line `#name = value`, without parameters.
  KELP_QUILL_INP_EXPORT InputBuilder& set_assignment(std::string name, std::string value);

  /// Makes the first command named `name` the line `#name`, without value and parameters.
  KELP_QUILL_INP_EXPORT InputBuilder& set_flag(std::string name);

  /// Appends a command as it is, even if there are others with its name. Makes no copy of the
  /// document.
  KELP_QUILL_INP_EXPORT InputBuilder& add_command(HeaderCommand&& command);
  KELP_QUILL_INP_EXPORT InputBuilder& add_command(const HeaderCommand& command);

  /// Sets the line `charge multiplicity`; the geometry's atoms or files stay. All numbers are
  /// allowed. Makes no copy of the document.
  KELP_QUILL_INP_EXPORT InputBuilder& set_charge_and_multiplicity(int charge, int multiplicity);

  /// Removes the line of charge and multiplicity, and sets the charge to 0 and the multiplicity
  /// to 1. Makes no copy of the document.
  KELP_QUILL_INP_EXPORT InputBuilder& clear_charge_and_multiplicity();

  /// Appends a copy of one atom to the inline atoms, the line `symbol x y z`. A geometry of another
  /// kind is first replaced by an empty list of atoms.
  KELP_QUILL_INP_EXPORT InputBuilder& add_atom(const AtomRecord& atom);
  KELP_QUILL_INP_EXPORT InputBuilder& add_atom(const kelp::core::Atom& atom);

  /// Replaces the geometry by a copy of these atoms, in order, one line `symbol x y z` each;
  /// symbols are not normalised. The charge and multiplicity line stays.
  KELP_QUILL_INP_EXPORT InputBuilder& set_geometry(const std::vector<AtomRecord>& atoms);
  KELP_QUILL_INP_EXPORT InputBuilder& set_geometry(const kelp::core::Geometry& geometry);

  /// Replaces the geometry by references to any number of XYZ files, one line `XYZ path` each, in
  /// order.
  KELP_QUILL_INP_EXPORT InputBuilder& set_xyz_files(std::vector<std::string> files);

  /// Replaces the geometry by a reference to one XYZ file, the line `XYZ path`.
  KELP_QUILL_INP_EXPORT InputBuilder& set_xyz_file(std::string path);

  /// Replaces the geometry by a reference to a trajectory, the line `XYZTRAJ path`.
  KELP_QUILL_INP_EXPORT InputBuilder& set_xyz_trajectory(std::string path);

  /// Appends a post-processing line as it is, even if there is an equal one. Makes no copy of the
  /// document.
  KELP_QUILL_INP_EXPORT InputBuilder& add_post_command(PostCommand&& command);
  KELP_QUILL_INP_EXPORT InputBuilder& add_post_command(const PostCommand& command);

  /// Appends the line `C a`, which fixes the position of atom `a`. Atoms are numbered as in the
  /// file; neither these numbers nor those of the next functions are checked.
  KELP_QUILL_INP_EXPORT InputBuilder& add_atom_constraint(int a);

  /// Appends the line `B a b`, which fixes the distance between atoms `a` and `b`.
  KELP_QUILL_INP_EXPORT InputBuilder& add_bond_constraint(int a, int b);

  /// Appends the line `A a b c`, which fixes the angle between atoms `a` and `c` at its vertex `b`.
  KELP_QUILL_INP_EXPORT InputBuilder& add_angle_constraint(int a, int b, int c);

  /// Appends the line `D a b c d`, which fixes the dihedral angle about the bond of atoms `b` and
  /// `c`.
  KELP_QUILL_INP_EXPORT InputBuilder& add_dihedral_constraint(int a, int b, int c, int d);

  /// Appends the line `S`, the atoms, `value` and `steps`: `S a b value steps` scans a bond, with
  /// three atoms an angle, with four a dihedral. The count of atoms is not checked. The value is
  /// written with up to six significant digits.
  KELP_QUILL_INP_EXPORT InputBuilder& add_scan(std::vector<int> atoms, double value, int steps);

  /// Appends the line `POST path`; earlier ones stay.
  KELP_QUILL_INP_EXPORT InputBuilder& set_post_file(std::string path);

  // Null pointers and numbers are not texts; text_argument.hpp says more.
  template <typename Path, typename = RefusedAsText<Path>>
  void write_file(Path) const = delete;
  template <typename Name, typename = RefusedAsText<Name>>
  void set_task(Name, std::vector<CommandParameter> = {}) = delete;
  template <typename Command, typename Key, typename Value,
            typename = RefusedAsText<Command, Key, Value>>
  void set_task_parameter(Command, Key, Value) = delete;
  template <typename Value, typename = RefusedAsText<Value>>
  void set_model(Value) = delete;
  template <typename Value, typename = RefusedAsText<Value>>
  void set_device(Value) = delete;
  template <typename Name, typename Value, typename = RefusedAsText<Name, Value>>
  void set_assignment(Name, Value) = delete;
  template <typename Name, typename = RefusedAsText<Name>>
  void set_flag(Name) = delete;
  template <typename Path, typename = RefusedAsText<Path>>
  void set_xyz_file(Path) = delete;
  template <typename Path, typename = RefusedAsText<Path>>
  void set_xyz_trajectory(Path) = delete;
  template <typename Path, typename = RefusedAsText<Path>>
  void set_post_file(Path) = delete;

 private:
  template <typename Operation>
  InputBuilder& edit(Operation operation);

  QuillInput document_;
};

}  // namespace kelp::input::quill

#endif  // KELP_INPUT_QUILL_BUILDER_HPP
