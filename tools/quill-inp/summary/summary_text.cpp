#include <cstddef>
#include <string_view>

#include "editing/phrases.hpp"
#include "kelp/input/quill/lossless/quoting.hpp"
#include "kelp/input/quill/writer.hpp"
#include "model/post_line_shapes.hpp"
#include "quill-inp/formats/composition.hpp"
#include "quill-inp/summary/command_roles.hpp"
#include "quill-inp/summary/summary.hpp"
#include "quill-inp/text/colors.hpp"
#include "quill-inp/text/counted.hpp"
#include "quill-inp/text/terminal_text.hpp"
#include "reader/diagnostics.hpp"

namespace kelp::input::quill::tool {

namespace {

constexpr std::size_t label_width = 14;

/// Writes rows of a label and a text.
class Rows {
 public:
  Rows(bool is_colored, const TextSink& sink) : is_colored_(is_colored), sink_(sink) {}

  void add(std::string_view label, std::string_view text, std::string_view color = label_color) {
    std::string row = "  ";
    row += colored(label, color, is_colored_);
    row.append(label_width - label.size(), ' ');
    row += shown_on_one_line(text);
    row += '\n';
    sink_(row);
  }

 private:
  bool is_colored_;
  const TextSink& sink_;
};

/// Returns a command as it would be in a file, with quotes where they are needed.
std::string header_line(const HeaderCommand& command) {
  return to_string(lossless::quote(command).command);
}

void add_commands(Rows& rows, const QuillInput& input) {
  const CommandRoles roles = sort_commands(input);
  for (const HeaderCommand* task : roles.tasks) rows.add("task", header_line(*task).substr(1));
  if (roles.model) rows.add("model", *roles.model);
  if (roles.device) rows.add("device", *roles.device);
  for (const HeaderCommand* command : roles.others) rows.add("command", header_line(*command));
}

std::string describe_geometry(const GeometryBlock& geometry) {
  switch (geometry.kind) {
    case GeometryKind::Atoms:
      return counted(geometry.atoms.size(), "atom") + ", " +
             to_formula(hill_composition(geometry.atoms));
    case GeometryKind::XyzFile:
      return counted(geometry.xyz_files.size(), "XYZ file");
    case GeometryKind::XyzTrajectory:
      return "a trajectory";
    case GeometryKind::None:
      break;
  }
  return "none";
}

void add_geometry(Rows& rows, const GeometryBlock& geometry) {
  if (geometry.has_charge_and_multiplicity) {
    rows.add("charge", std::to_string(geometry.charge));
    rows.add("multiplicity", std::to_string(geometry.multiplicity));
  }
  rows.add("geometry", describe_geometry(geometry));
  for (const std::string& path : geometry.xyz_files) rows.add("file", path);
}

/// Returns what a scan of this number of atoms changes.
std::string_view scanned(std::size_t atoms) {
  constexpr std::string_view names[] = {"bond", "angle", "dihedral"};
  return 2 <= atoms && atoms <= 4 ? names[atoms - 2] : std::string_view("atoms");
}

std::string describe_atoms(std::string_view subject, const std::vector<std::int32_t>& numbers) {
  return std::string(subject) + " " + lossless::joined(numbers);
}

std::string describe_scan(const PostCommand& scan) {
  std::string text = describe_atoms(scanned(scan.atom_indices.size()), scan.atom_indices);
  if (scan.scan_value) text += ", value " + lossless::shortest_text(*scan.scan_value);
  if (scan.scan_steps)
    text += ", " + std::to_string(*scan.scan_steps) + (*scan.scan_steps == 1 ? " step" : " steps");
  return text;
}

void add_constraint(Rows& rows, const PostCommand& command) {
  const PostLineShape* shape = find_post_line_shape(command.kind);
  const std::string_view subject = shape == nullptr ? std::string_view("unknown") : shape->subject;
  rows.add("constraint", describe_atoms(subject, command.atom_indices));
}

void add_post_command(Rows& rows, const PostCommand& command) {
  switch (command.kind) {
    case PostCommandKind::Scan:
      rows.add("scan", describe_scan(command));
      return;
    case PostCommandKind::PostFile:
      rows.add("post file", command.post_file);
      return;
    case PostCommandKind::Raw:
      rows.add("raw line", command.raw_text);
      return;
    default:
      add_constraint(rows, command);
  }
}

void add_warning(Rows& rows, const DiagnosticParts& warning) {
  const std::string place =
      warning.line ? "line " + std::to_string(*warning.line) + ": " : std::string();
  rows.add("warning", place + std::string(warning.message), warning_color);
}

}  // namespace

void write_summary_text(const std::string& name, const ParseResult& result,
                        const SummaryStyle& style, const TextSink& sink) {
  sink(colored(shown_on_one_line(name), name_color, style.is_colored) + "\n");
  Rows rows(style.is_colored, sink);
  add_commands(rows, result.input);
  add_geometry(rows, result.input.geometry);
  for (const PostCommand& command : result.input.post_commands) add_post_command(rows, command);
  if (!style.has_warnings) return;
  for (const std::string& warning : result.warnings) add_warning(rows, split_diagnostic(warning));
}

}  // namespace kelp::input::quill::tool
