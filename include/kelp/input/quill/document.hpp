#ifndef KELP_INPUT_QUILL_DOCUMENT_HPP
#define KELP_INPUT_QUILL_DOCUMENT_HPP

/// @file
/// The in-memory form of a QUILL input: header commands, a coordinate section and post-processing
/// lines, and the lookup of commands by name.
///
///     QuillInput input;
///     input.upsert_command("opt").parameters.push_back({"maxiter", "50"});
///     input.commands.front().kind = HeaderCommandKind::ParameterList;
///     input.has_command(" #OPT ");  // true
///     input.to_string();            // "#opt(maxiter=50)\n"
///
/// All types are plain values that own their content. Strings are byte strings, kept exactly as
/// given. Distinct documents may be used in distinct threads at the same time; one document may be
/// read by several threads as long as none changes it. Functions throw only what the standard
/// library throws when memory runs out, unless their comment says more.

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "kelp/input/quill/export.hpp"
#include "kelp/input/quill/text_argument.hpp"

namespace kelp::input::quill {

#ifdef _GLIBCXX_DEBUG
// This macro changes the layout of vectors, and so of the types below. Only a library that was
// compiled with it defines this name: with any other, the program does not link.
KELP_QUILL_INP_EXPORT extern const bool is_compiled_with_glibcxx_debug;
[[gnu::used]] static const bool* const needs_glibcxx_debug = &is_compiled_with_glibcxx_debug;
#endif

/// The form of a header line. The values never change.
enum class HeaderCommandKind : std::int32_t {
  Flag = 0,           ///< `#name`
  Assignment = 1,     ///< `#name = value`
  ParameterList = 2,  ///< `#name(parameter, parameter=value)`
};

/// The form of the coordinate section. The values never change.
enum class GeometryKind : std::int32_t {
  None = 0,           ///< no coordinates
  Atoms = 1,          ///< one line per atom: a symbol and three numbers
  XyzFile = 2,        ///< one line `XYZ path` per file
  XyzTrajectory = 3,  ///< one line `XYZTRAJ path`
};

/// The form of a post-processing line. The values never change.
enum class PostCommandKind : std::int32_t {
  AtomConstraint = 0,      ///< `C i`: the position of atom i is fixed
  BondConstraint = 1,      ///< `B i j`: the distance between two atoms is fixed
  AngleConstraint = 2,     ///< `A i j k`: the angle at atom j is fixed
  DihedralConstraint = 3,  ///< `D i j k l`: the dihedral angle is fixed
  Scan = 4,                ///< `S`, two to four atom numbers, a value and a number of steps
  PostFile = 5,            ///< `POST path`
  Raw = 6,                 ///< any other text
};

/// One entry of a parameter list: `tight` (no value), `maxiter=50`, or `basis=` (an empty value,
/// which is not the same as no value).
struct CommandParameter {
  /// The text before the first `=`, or the whole entry; the reader stores it trimmed, with quotes
  /// and letter case as in the file.
  std::string name;

  /// The text after the first `=`; the reader removes blanks and one pair of quotes around it. The
  /// writer adds no quotes.
  std::optional<std::string> value;

  CommandParameter() = default;

  /// Takes both members, in their order; without a second argument there is no value.
  CommandParameter(std::string parameter_name,
                   std::optional<std::string> parameter_value = std::nullopt)
      : name(std::move(parameter_name)), value(std::move(parameter_value)) {}
  CommandParameter(const CommandParameter&) = default;
  CommandParameter(CommandParameter&&) noexcept = default;
  CommandParameter& operator=(const CommandParameter&) = default;
  CommandParameter& operator=(CommandParameter&&) noexcept = default;
  KELP_QUILL_INP_EXPORT ~CommandParameter();

  // Null pointers and numbers are not texts; text_argument.hpp says more.
  template <typename Name, typename Value = std::string, typename = RefusedAsText<Name, Value>>
  explicit CommandParameter(Name, Value = {}) = delete;
};

/// One header line. Only what `kind` selects is written.
struct HeaderCommand {
  /// The name without the leading "#", as it was stored. Commands are found by the form that
  /// normalize_command_name() returns.
  std::string name;

  /// Decides which of the two members below is written.
  HeaderCommandKind kind = HeaderCommandKind::Flag;

  /// The assigned value, used only by an assignment. An assignment without a value is written as
  /// `#name = `, which the reader reads as an assignment of an empty value.
  std::optional<std::string> value;

  /// The entries between the parentheses, in order, used only by a parameter list. Several entries
  /// may have the same name.
  std::vector<CommandParameter> parameters;

  HeaderCommand() = default;

  /// Takes all members, in their order; the name alone makes a flag.
  HeaderCommand(std::string command_name, HeaderCommandKind command_kind = HeaderCommandKind::Flag,
                std::optional<std::string> assigned_value = std::nullopt,
                std::vector<CommandParameter> parameter_list = {})
      : name(std::move(command_name)),
        kind(command_kind),
        value(std::move(assigned_value)),
        parameters(std::move(parameter_list)) {}
  HeaderCommand(const HeaderCommand&) = default;
  HeaderCommand(HeaderCommand&&) noexcept = default;
  HeaderCommand& operator=(const HeaderCommand&) = default;
  HeaderCommand& operator=(HeaderCommand&&) noexcept = default;
  KELP_QUILL_INP_EXPORT ~HeaderCommand();

  // Null pointers and numbers are not texts; text_argument.hpp says more.
  template <typename Name, typename Value = std::string, typename = RefusedAsText<Name, Value>>
  explicit HeaderCommand(Name, HeaderCommandKind = {}, Value = {},
                         std::vector<CommandParameter> = {}) = delete;
};

/// One inline atom. The coordinates are Cartesian, in the unit of the file they come from; the
/// library never converts them.
struct AtomRecord {
  /// The reader stores symbols in the letter case of element symbols, "Cl", even if no element has
  /// this symbol. The writer writes what is stored.
  std::string symbol;

  double x = 0.0;  ///< written with six decimals
  double y = 0.0;  ///< as `x`
  double z = 0.0;  ///< as `x`
};

/// The coordinate section: charge and multiplicity, and the geometry in one of three forms.
struct GeometryBlock {
  /// Selects what is written: `atoms`, all entries of `xyz_files` or only the first one.
  GeometryKind kind = GeometryKind::None;

  std::int32_t charge = 0;        ///< of the whole molecule, in elementary charges; not checked
  std::int32_t multiplicity = 1;  ///< of the spin, 1 for a singlet; not checked, not even its sign

  /// Whether the line with both numbers is written, for any kind, `None` included.
  bool has_charge_and_multiplicity = false;

  /// Atom numbers in post-processing lines refer to this order.
  std::vector<AtomRecord> atoms = {};

  /// Paths as they are in the file, blanks and quotes included. The files are never opened. A
  /// reference without a path has no entry.
  std::vector<std::string> xyz_files = {};
};

/// One post-processing line. Only what `kind` selects is written.
struct PostCommand {
  /// Decides which keyword begins the line and which of the members below are written.
  PostCommandKind kind = PostCommandKind::Raw;

  /// Atom numbers as in the file, for constraints and scans: neither their count nor their range is
  /// checked, and they are not converted between counting from 0 and from 1.
  std::vector<std::int32_t> atom_indices;

  /// The value of a scan, in the unit of the file. Written with up to six significant digits.
  std::optional<double> scan_value;

  /// The number of steps of a scan. Written also when `scan_value` is missing.
  std::optional<std::int32_t> scan_steps;

  /// The path of a post file, with its inner blanks. The file is never opened.
  std::string post_file;

  /// The trimmed line, which the reader keeps for every kind; written for `Raw` only.
  std::string raw_text;

  PostCommand() = default;

  /// Takes all members, in their order; those left out are empty.
  PostCommand(PostCommandKind command_kind, std::vector<std::int32_t> atom_numbers = {},
              std::optional<double> value = std::nullopt,
              std::optional<std::int32_t> steps = std::nullopt, std::string path = {},
              std::string line = {})
      : kind(command_kind),
        atom_indices(std::move(atom_numbers)),
        scan_value(value),
        scan_steps(steps),
        post_file(std::move(path)),
        raw_text(std::move(line)) {}
  PostCommand(const PostCommand&) = default;
  PostCommand(PostCommand&&) noexcept = default;
  PostCommand& operator=(const PostCommand&) = default;
  PostCommand& operator=(PostCommand&&) noexcept = default;
  KELP_QUILL_INP_EXPORT ~PostCommand();

  // Null pointers and numbers are not texts; text_argument.hpp says more.
  template <typename Path, typename Line = std::string, typename = RefusedAsText<Path, Line>>
  explicit PostCommand(PostCommandKind, std::vector<std::int32_t>, std::optional<double>,
                       std::optional<std::int32_t>, Path, Line = {}) = delete;
};

/// A whole input. Every vector has the order of the lines in the file.
struct QuillInput {
  /// The header. Several commands may have the same name; the functions below count them from 0.
  std::vector<HeaderCommand> commands;

  /// Everything between the header and the post-processing lines.
  GeometryBlock geometry;

  /// The lines after the coordinates, including those that the reader does not understand.
  std::vector<PostCommand> post_commands;

  QuillInput() = default;

  /// Takes the three parts, in the order of the file; those left out are empty.
  QuillInput(std::vector<HeaderCommand> header, GeometryBlock coordinates = {},
             std::vector<PostCommand> post_processing = {})
      : commands(std::move(header)),
        geometry(std::move(coordinates)),
        post_commands(std::move(post_processing)) {}
  KELP_QUILL_INP_EXPORT QuillInput(const QuillInput& other);
  QuillInput(QuillInput&&) noexcept = default;
  QuillInput& operator=(const QuillInput&) = default;
  QuillInput& operator=(QuillInput&&) noexcept = default;
  KELP_QUILL_INP_EXPORT ~QuillInput();

  /// Returns the command that is number `occurrence`, counted from 0, among the commands whose name
  /// matches `name` (see normalize_command_name()), or a null pointer when there are fewer.
  /// The pointer is valid until a command is inserted or removed. Linear in the number of commands.
  [[nodiscard]] KELP_QUILL_INP_EXPORT const HeaderCommand* find_command(
      std::string_view name, std::uint64_t occurrence = 0) const;
  [[nodiscard]] KELP_QUILL_INP_EXPORT HeaderCommand* find_command(std::string_view name,
                                                                  std::uint64_t occurrence = 0);

  /// Returns whether at least one command's name matches `name`.
  [[nodiscard]] KELP_QUILL_INP_EXPORT bool has_command(std::string_view name) const;

  /// Returns whether the document says what to compute: whether it has a command named `sp`, `opt`,
  /// `ts`, `freq`, `irc` or `scan`, of any kind.
  [[nodiscard]] KELP_QUILL_INP_EXPORT bool has_task_command() const;

  /// Returns the stored name of every command, in document order, including repeated names.
  [[nodiscard]] KELP_QUILL_INP_EXPORT std::vector<std::string> command_names() const;

  /// Returns the first command whose name matches `name`, unchanged; if there is none, appends a
  /// flag that stores `name` exactly as given and returns that. The reference is valid until a
  /// command is inserted or removed. If memory runs out, the document is not changed.
  KELP_QUILL_INP_EXPORT HeaderCommand& upsert_command(std::string name);

  /// Removes every command whose name matches `name`, or only the one that is number `occurrence`,
  /// counted from 0, among them. The others keep their order. Returns whether a command was
  /// removed. `name` may point into the document. If memory runs out, the document is not changed.
  KELP_QUILL_INP_EXPORT bool remove_command(std::string_view name,
                                            std::optional<std::uint64_t> occurrence = std::nullopt);

  /// Returns the canonical text: header lines, coordinate section and post-processing lines, with
  /// one empty line between sections that are present; an empty document gives the empty text.
  /// Stored strings are written byte for byte: nothing is quoted or escaped. The text depends on
  /// the document alone, not on any locale.
  [[nodiscard]] KELP_QUILL_INP_EXPORT std::string to_string() const;

  /// Creates or truncates the file at `path` and writes the canonical text into it. Throws
  /// std::runtime_error, "Failed to open QUILL input for writing: " followed by `path`, when the
  /// file cannot be opened. Later errors, such as a full disk, are not reported: a caller that must
  /// know about them writes the result of to_string() itself.
  KELP_QUILL_INP_EXPORT void write_file(const std::string& path) const;

  // Null pointers and numbers are not texts; text_argument.hpp says more.
  template <typename Name, typename = RefusedAsText<Name>>
  void find_command(Name, std::uint64_t = 0) = delete;
  template <typename Name, typename = RefusedAsText<Name>>
  void find_command(Name, std::uint64_t = 0) const = delete;
  template <typename Name, typename = RefusedAsText<Name>>
  void has_command(Name) const = delete;
  template <typename Name, typename = RefusedAsText<Name>>
  void upsert_command(Name) = delete;
  template <typename Name, typename = RefusedAsText<Name>>
  void remove_command(Name, std::optional<std::uint64_t> = std::nullopt) = delete;
  template <typename Path, typename = RefusedAsText<Path>>
  void write_file(Path) const = delete;
};

/// Returns the form in which command names are compared: trimmed, without one leading "#", trimmed
/// again, and in lower case (ASCII letters only). " # Opt " gives "opt", "##opt" gives "#opt".
[[nodiscard]] KELP_QUILL_INP_EXPORT std::string normalize_command_name(std::string_view name);

/// Returns the position of the first parameter of `command` whose name equals `name` when both are
/// trimmed and in lower case, or nothing. No "#" is removed, and the command's kind does not
/// matter. Linear in the number of parameters.
[[nodiscard]] KELP_QUILL_INP_EXPORT std::optional<std::uint64_t> find_parameter_index(
    const HeaderCommand& command, std::string_view name);

}  // namespace kelp::input::quill

#endif  // KELP_INPUT_QUILL_DOCUMENT_HPP
