#ifndef KELP_INPUT_QUILL_DOCUMENT_HPP
#define KELP_INPUT_QUILL_DOCUMENT_HPP

// The in-memory form of a QUILL input: header commands, a coordinate section and post-processing
// lines, and the lookup of commands by name.
//
//   QuillInput input;
//   input.upsert_command("opt").parameters.push_back({"maxiter", "50"});
//   input.commands.front().kind = HeaderCommandKind::ParameterList;
//   input.has_command(" #OPT ");  // true
//   input.to_string();            // "#opt(maxiter=50)\n"
//
// All types are plain values that own what they hold. Strings are byte strings, kept exactly as
// given. Distinct documents may be used in distinct threads at the same time; one document may be
// read by several threads as long as none changes it. Unless a function says otherwise, it throws
// only what the standard library throws when memory runs out.

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "kelp/input/quill/export.hpp"

namespace kelp::input::quill {

/// The form of a header line. The values never change.
enum class HeaderCommandKind : std::int32_t {
  Flag = 0,           // #name
  Assignment = 1,     // #name = value
  ParameterList = 2,  // #name(parameter, parameter=value)
};

/// The form of the coordinate section. The values never change.
enum class GeometryKind : std::int32_t {
  None = 0,           // no coordinates
  Atoms = 1,          // one line per atom
  XyzFile = 2,        // one "XYZ path" line per file
  XyzTrajectory = 3,  // one "XYZTRAJ path" line
};

/// The form of a post-processing line. The values never change.
enum class PostCommandKind : std::int32_t {
  AtomConstraint = 0,      // C i
  BondConstraint = 1,      // B i j
  AngleConstraint = 2,     // A i j k
  DihedralConstraint = 3,  // D i j k l
  Scan = 4,                // S, two to four atom numbers, a value and a number of steps
  PostFile = 5,            // POST path
  Raw = 6,                 // any other text
};

/// One entry of a parameter list: `tight` (no value), `maxiter=50`, or `basis=` (an empty value,
/// which is not the same as none).
struct CommandParameter {
  std::string name;
  std::optional<std::string> value;

  CommandParameter() = default;
  CommandParameter(std::string parameter_name,
                   std::optional<std::string> parameter_value = std::nullopt)
      : name(std::move(parameter_name)), value(std::move(parameter_value)) {}
  CommandParameter(const CommandParameter&) = default;
  CommandParameter(CommandParameter&&) noexcept = default;
  CommandParameter& operator=(const CommandParameter&) = default;
  CommandParameter& operator=(CommandParameter&&) noexcept = default;
  KELP_QUILL_INP_EXPORT ~CommandParameter();
};

/// One header line. `name` stands without the leading "#", in the spelling of whoever stored it.
/// `value` counts for an assignment only and `parameters` for a parameter list only; the writer
/// passes over whichever the kind does not use.
struct HeaderCommand {
  std::string name;
  HeaderCommandKind kind = HeaderCommandKind::Flag;
  std::optional<std::string> value;
  std::vector<CommandParameter> parameters;

  HeaderCommand() = default;
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
};

/// One inline atom. The coordinates are Cartesian, in the unit of the file they come from; nothing
/// in the library converts them.
struct AtomRecord {
  std::string symbol;
  double x = 0.0;
  double y = 0.0;
  double z = 0.0;
};

/// The coordinate section. Only what `kind` selects is written: `atoms` for `Atoms`, every entry of
/// `xyz_files` for `XyzFile`, the first one for `XyzTrajectory`. The charge and multiplicity line
/// is written for every kind, exactly when `has_charge_and_multiplicity` is true.
struct GeometryBlock {
  GeometryKind kind = GeometryKind::None;
  std::int32_t charge = 0;
  std::int32_t multiplicity = 1;
  bool has_charge_and_multiplicity = false;
  std::vector<AtomRecord> atoms = {};
  std::vector<std::string> xyz_files = {};
};

/// One post-processing line. Atom numbers stand as in the file: neither their count nor their range
/// is checked, and they are not converted between counting from 0 and from 1. The reader keeps the
/// line in `raw_text` for every kind; the writer prints `raw_text` for `Raw` only.
struct PostCommand {
  PostCommandKind kind = PostCommandKind::Raw;
  std::vector<std::int32_t> atom_indices;
  std::optional<double> scan_value;
  std::optional<std::int32_t> scan_steps;
  std::string post_file;
  std::string raw_text;

  PostCommand() = default;
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
};

/// A whole input. The order of every vector is the order of the lines in the file.
struct QuillInput {
  std::vector<HeaderCommand> commands;
  GeometryBlock geometry;
  std::vector<PostCommand> post_commands;

  QuillInput() = default;
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
  /// matches `name` (see normalize_command_name), or a null pointer when there are not so many. The
  /// pointer is valid until a command is inserted or removed. Linear in the number of commands.
  KELP_QUILL_INP_EXPORT const HeaderCommand* find_command(std::string_view name,
                                                          std::uint64_t occurrence = 0) const;
  KELP_QUILL_INP_EXPORT HeaderCommand* find_command(std::string_view name,
                                                    std::uint64_t occurrence = 0);

  /// Returns whether at least one command's name matches `name`.
  KELP_QUILL_INP_EXPORT bool has_command(std::string_view name) const;

  /// Returns whether the document says what to compute: whether it has a command named `sp`, `opt`,
  /// `ts`, `freq`, `irc` or `scan`, of whatever kind.
  KELP_QUILL_INP_EXPORT bool has_task_command() const;

  /// Returns the stored name of every command, in document order, repeated names included.
  KELP_QUILL_INP_EXPORT std::vector<std::string> command_names() const;

  /// Returns the first command whose name matches `name`, unchanged; if there is none, appends a
  /// flag that stores `name` exactly as given and returns that. The reference is valid until a
  /// command is inserted or removed. Should memory run out, the document is as before.
  KELP_QUILL_INP_EXPORT HeaderCommand& upsert_command(std::string name);

  /// Removes every command whose name matches `name`, or only the one that is number `occurrence`,
  /// counted from 0, among them. The others keep their order. Returns whether a command was
  /// removed. `name` may point into the document. Should memory run out, the document is as before.
  KELP_QUILL_INP_EXPORT bool remove_command(std::string_view name,
                                            std::optional<std::uint64_t> occurrence = std::nullopt);

  /// Returns the canonical text: header lines, coordinate section and post-processing lines, with
  /// one empty line between sections that are present; an empty document gives the empty text.
  /// Stored strings are written byte for byte: nothing is quoted or escaped. The text depends on
  /// the document alone, not on any locale.
  KELP_QUILL_INP_EXPORT std::string to_string() const;

  /// Creates or truncates the file at `path` and writes the canonical text into it. Throws
  /// std::runtime_error, "Failed to open QUILL input for writing: " followed by `path`, when the
  /// file cannot be opened. Errors after that, a full disk for one, are not reported: a caller who
  /// must know writes the result of to_string() by its own means.
  KELP_QUILL_INP_EXPORT void write_file(const std::string& path) const;
};

/// Returns the form in which command names are compared: trimmed, without one leading "#", trimmed
/// again, and in lower case (ASCII letters only). " # Opt " gives "opt", "##opt" gives "#opt".
KELP_QUILL_INP_EXPORT std::string normalize_command_name(std::string_view name);

/// Returns the position of the first parameter of `command` whose name equals `name` when both are
/// trimmed and in lower case, or nothing. No "#" is removed, and the command's kind does not
/// matter. Linear in the number of parameters.
KELP_QUILL_INP_EXPORT std::optional<std::uint64_t> find_parameter_index(
    const HeaderCommand& command, std::string_view name);

}  // namespace kelp::input::quill

#endif  // KELP_INPUT_QUILL_DOCUMENT_HPP
