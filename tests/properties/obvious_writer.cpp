#include "properties/obvious_writer.hpp"

#include <cstddef>
#include <cstdio>
#include <vector>

namespace kelp::input::quill::obvious {

namespace {

constexpr std::size_t longest_number = 400;  // DBL_MAX in full has 309 digits before the point

std::string column(double coordinate) {
  const std::string text = six_decimals(coordinate);
  return text.size() < 14 ? std::string(14 - text.size(), ' ') + text : text;
}

std::string atom_line(const AtomRecord& atom) {
  std::string line = atom.symbol;
  while (line.size() < 3) line += ' ';
  return line + column(atom.x) + column(atom.y) + column(atom.z) + "\n";
}

std::string joined(const std::vector<std::string>& pieces, const std::string& separator) {
  std::string text;
  for (std::size_t i = 0; i < pieces.size(); ++i) text += (i == 0 ? "" : separator) + pieces[i];
  return text;
}

std::string parameters(const HeaderCommand& command) {
  std::vector<std::string> pieces;
  for (const CommandParameter& parameter : command.parameters)
    pieces.push_back(parameter.name + (parameter.value ? "=" + *parameter.value : ""));
  return "(" + joined(pieces, ", ") + ")";
}

std::string atom_numbers(const PostCommand& command) {
  std::vector<std::string> pieces;
  for (const std::int32_t number : command.atom_indices) pieces.push_back(std::to_string(number));
  return joined(pieces, " ");
}

std::string scan(const PostCommand& command) {
  std::string text = "S " + atom_numbers(command);
  if (command.scan_value) text += " " + six_digits(*command.scan_value);
  if (command.scan_steps) text += " " + std::to_string(*command.scan_steps);
  return text;
}

}  // namespace

std::string six_decimals(double value) {
  char text[longest_number];
  const int length = std::snprintf(text, sizeof text, "%.6f", value);
  return std::string(text, static_cast<std::size_t>(length));
}

std::string six_digits(double value) {
  char text[longest_number];
  const int length = std::snprintf(text, sizeof text, "%g", value);
  return std::string(text, static_cast<std::size_t>(length));
}

std::string written(const HeaderCommand& command) {
  std::string name = "#" + command.name;
  if (command.kind == HeaderCommandKind::Assignment)
    return name + " = " + command.value.value_or("");
  if (command.kind == HeaderCommandKind::ParameterList) return name + parameters(command);
  return name;
}

std::string written(const GeometryBlock& geometry) {
  std::string text;
  if (geometry.has_charge_and_multiplicity)
    text += std::to_string(geometry.charge) + " " + std::to_string(geometry.multiplicity) + "\n";
  if (geometry.kind == GeometryKind::Atoms)
    for (const AtomRecord& atom : geometry.atoms) text += atom_line(atom);
  if (geometry.kind == GeometryKind::XyzFile)
    for (const std::string& path : geometry.xyz_files) text += "XYZ " + path + "\n";
  if (geometry.kind == GeometryKind::XyzTrajectory)
    text += geometry.xyz_files.empty() ? "XYZTRAJ\n" : "XYZTRAJ " + geometry.xyz_files[0] + "\n";
  return text;
}

std::string written(const PostCommand& command) {
  switch (command.kind) {
    case PostCommandKind::AtomConstraint:
      return "C " + atom_numbers(command);
    case PostCommandKind::BondConstraint:
      return "B " + atom_numbers(command);
    case PostCommandKind::AngleConstraint:
      return "A " + atom_numbers(command);
    case PostCommandKind::DihedralConstraint:
      return "D " + atom_numbers(command);
    case PostCommandKind::Scan:
      return scan(command);
    case PostCommandKind::PostFile:
      return "POST " + command.post_file;
    case PostCommandKind::Raw:
      return command.raw_text;
  }
  return "";
}

std::string written(const QuillInput& document) {
  const bool has_coordinates =
      document.geometry.kind != GeometryKind::None || document.geometry.has_charge_and_multiplicity;
  const bool has_post_lines = !document.post_commands.empty();
  std::string text;
  for (const HeaderCommand& command : document.commands) text += written(command) + "\n";
  if (!document.commands.empty() && (has_coordinates || has_post_lines)) text += "\n";
  if (has_coordinates) text += written(document.geometry);
  if (has_coordinates && has_post_lines) text += "\n";
  for (const PostCommand& command : document.post_commands) text += written(command) + "\n";
  return text;
}

}  // namespace kelp::input::quill::obvious
