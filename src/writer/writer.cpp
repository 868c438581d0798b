#include "kelp/input/quill/writer.hpp"

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

#include "model/post_line_shapes.hpp"
#include "writer/number_text.hpp"
#include "writer/text_buffer.hpp"

namespace kelp::input::quill {

namespace {

constexpr std::size_t symbol_width = 3;
constexpr std::size_t atom_line_size = symbol_width + 3 * coordinate_width + 1;

// The largest number of characters that each of these takes.
constexpr std::size_t charge_line_size = std::string_view("-2147483648 -2147483648\n").size();
constexpr std::size_t blank_and_integer_size = std::string_view(" -2147483648").size();
constexpr std::size_t blank_and_scan_value_size = std::string_view(" -1.23457e-308").size();

void append_padded(std::string& out, const std::string& text, std::size_t width) {
  out += text;
  if (text.size() < width) out.append(width - text.size(), ' ');
}

void append_parameter(std::string& out, const CommandParameter& parameter) {
  out += parameter.name;
  if (!parameter.value) return;
  out += '=';
  out += *parameter.value;
}

void append_parameters(std::string& out, const std::vector<CommandParameter>& parameters) {
  out += '(';
  const char* separator = "";
  for (const CommandParameter& parameter : parameters) {
    out += separator;
    append_parameter(out, parameter);
    separator = ", ";
  }
  out += ')';
}

void append_command(std::string& out, const HeaderCommand& command) {
  out += '#';
  out += command.name;
  if (command.kind == HeaderCommandKind::Assignment) {
    out += " = ";
    if (command.value) out += *command.value;
  } else if (command.kind == HeaderCommandKind::ParameterList) {
    append_parameters(out, command.parameters);
  }
}

void append_charge_and_multiplicity(std::string& out, const GeometryBlock& geometry) {
  char line[charge_line_size];
  char* end = write_integer(line, geometry.charge);
  *end++ = ' ';
  end = write_integer(end, geometry.multiplicity);
  *end++ = '\n';
  out.append(line, end);
}

/// Appends the line of an atom in one piece, if the symbol and all coordinates fit their columns.
bool append_usual_atom(std::string& out, const AtomRecord& atom) {
  char line[atom_line_size];
  const std::size_t length = atom.symbol.size();
  if (length > symbol_width) return false;
  for (std::size_t i = 0; i < symbol_width; ++i) line[i] = i < length ? atom.symbol[i] : ' ';
  char* const fields = line + symbol_width;
  if (!write_coordinate(fields, atom.x) || !write_coordinate(fields + coordinate_width, atom.y) ||
      !write_coordinate(fields + 2 * coordinate_width, atom.z))
    return false;
  line[atom_line_size - 1] = '\n';
  out.append(line, atom_line_size);
  return true;
}

void append_atom(std::string& out, const AtomRecord& atom) {
  if (append_usual_atom(out, atom)) return;
  append_padded(out, atom.symbol, symbol_width);
  append_coordinate(out, atom.x);
  append_coordinate(out, atom.y);
  append_coordinate(out, atom.z);
  out += '\n';
}

void append_xyz_file(std::string& out, const std::string& path) {
  out += "XYZ ";
  out += path;
  out += '\n';
}

void append_trajectory(std::string& out, const std::vector<std::string>& paths) {
  out += "XYZTRAJ";
  if (!paths.empty()) {
    out += ' ';
    out += paths.front();
  }
  out += '\n';
}

void append_geometry(std::string& out, const GeometryBlock& geometry) {
  if (geometry.has_charge_and_multiplicity) append_charge_and_multiplicity(out, geometry);
  switch (geometry.kind) {
    case GeometryKind::None:
      break;
    case GeometryKind::Atoms:
      for (const AtomRecord& atom : geometry.atoms) append_atom(out, atom);
      break;
    case GeometryKind::XyzFile:
      for (const std::string& path : geometry.xyz_files) append_xyz_file(out, path);
      break;
    case GeometryKind::XyzTrajectory:
      append_trajectory(out, geometry.xyz_files);
      break;
  }
}

// The functions named add_ take the end of the text in the buffer and return its new end.

char* add_blank_and_integer(TextBuffer& out, char* end, std::int32_t number) {
  end = out.room(end, blank_and_integer_size);
  *end++ = ' ';
  return write_integer(end, number);
}

char* add_blank_and_scan_value(TextBuffer& out, char* end, double value) {
  end = out.room(end, blank_and_scan_value_size);
  *end++ = ' ';
  return write_scan_value(end, value);
}

/// Adds the numbers, each after a blank. Without numbers, the blank after the keyword is there too.
char* add_atom_numbers(TextBuffer& out, char* end, const std::vector<std::int32_t>& numbers) {
  if (numbers.empty()) return out.add(end, ' ');
  for (const std::int32_t number : numbers) end = add_blank_and_integer(out, end, number);
  return end;
}

char* add_scan_settings(TextBuffer& out, char* end, const PostCommand& command) {
  if (command.scan_value) end = add_blank_and_scan_value(out, end, *command.scan_value);
  if (command.scan_steps) end = add_blank_and_integer(out, end, *command.scan_steps);
  return end;
}

char* add_post_command(TextBuffer& out, char* end, const PostCommand& command) {
  if (command.kind == PostCommandKind::Raw) return out.add(end, command.raw_text);
  const PostLineShape* shape = find_post_line_shape(command.kind);
  if (shape == nullptr) return end;
  for (const char letter : shape->keyword) end = out.add(end, letter);
  if (command.kind == PostCommandKind::PostFile)
    return out.add(out.add(end, ' '), command.post_file);
  end = add_atom_numbers(out, end, command.atom_indices);
  if (command.kind == PostCommandKind::Scan) end = add_scan_settings(out, end, command);
  return end;
}

void append_post_commands(std::string& out, const std::vector<PostCommand>& commands) {
  TextBuffer buffer(out);
  char* end = buffer.begin();
  for (const PostCommand& command : commands)
    end = buffer.add(add_post_command(buffer, end, command), '\n');
  buffer.flush(end);
}

/// How much room to reserve, so that a whole input is written without growing the text: the stored
/// strings, what is written around them, and usual lengths for numbers. A longer text still grows.
std::size_t expected_size(const HeaderCommand& command) {
  std::size_t size = command.name.size() + std::string_view("# = \n").size();
  if (command.value) size += command.value->size();
  for (const CommandParameter& parameter : command.parameters) {
    size += parameter.name.size() + std::string_view("=, ").size();
    if (parameter.value) size += parameter.value->size();
  }
  return size;
}

std::size_t expected_size(const GeometryBlock& geometry) {
  std::size_t size = charge_line_size;
  if (geometry.kind == GeometryKind::Atoms) {
    size += geometry.atoms.size() * atom_line_size;
  } else {
    for (const std::string& path : geometry.xyz_files)
      size += path.size() + std::string_view("XYZTRAJ \n").size();
  }
  return size;
}

std::size_t expected_size(const PostCommand& command) {
  if (command.kind == PostCommandKind::Raw) return command.raw_text.size() + 1;
  return command.post_file.size() + 6 * command.atom_indices.size() + 24;
}

std::size_t expected_size(const QuillInput& input) {
  std::size_t size = 2 + expected_size(input.geometry);
  for (const HeaderCommand& command : input.commands) size += expected_size(command);
  for (const PostCommand& command : input.post_commands) size += expected_size(command);
  return size;
}

}  // namespace

std::string to_string(const HeaderCommand& command) {
  std::string out;
  append_command(out, command);
  return out;
}

std::string to_string(const PostCommand& command) {
  std::string out;
  TextBuffer buffer(out);
  buffer.flush(add_post_command(buffer, buffer.begin(), command));
  return out;
}

std::string to_string(const GeometryBlock& geometry) {
  std::string out;
  append_geometry(out, geometry);
  return out;
}

std::string QuillInput::to_string() const {
  // The section counts as present even when its kind writes no line, so that the place of the
  // coordinates is kept in a document that has none yet.
  const bool has_coordinates =
      geometry.kind != GeometryKind::None || geometry.has_charge_and_multiplicity;
  const bool has_post_lines = !post_commands.empty();

  std::string out;
  out.reserve(expected_size(*this));
  for (const HeaderCommand& command : commands) {
    append_command(out, command);
    out += '\n';
  }
  if (!commands.empty() && (has_coordinates || has_post_lines)) out += '\n';
  if (has_coordinates) append_geometry(out, geometry);
  if (has_coordinates && has_post_lines) out += '\n';
  append_post_commands(out, post_commands);
  return out;
}

}  // namespace kelp::input::quill
