#include "kelp/input/quill/reader.hpp"

#include <optional>
#include <utility>

#include "kelp/chem/elements.hpp"
#include "kelp/input/quill/lines.hpp"
#include "reader/coordinate_lines.hpp"
#include "reader/diagnostics.hpp"
#include "reader/file_content.hpp"
#include "reader/header_line.hpp"
#include "reader/line_cursor.hpp"
#include "reader/line_records.hpp"
#include "reader/post_line.hpp"

namespace kelp::input::quill {

namespace {

void read_header(LineCursor& cursor, ParseResult& result) {
  std::vector<HeaderCommand>& commands = result.input.commands;
  while (!cursor.at_end() && cursor.trimmed().front() == '#') {
    commands.push_back(parse_header_command_line(cursor.line(), result.warnings, cursor.number()));
    cursor.take(LineRole::Command, commands.size() - 1);
  }
}

void read_charge_and_multiplicity(LineCursor& cursor, GeometryBlock& geometry) {
  if (cursor.at_end()) return;
  const auto numbers = parse_charge_and_multiplicity(cursor.trimmed());
  if (!numbers) return;
  geometry.charge = numbers->charge;
  geometry.multiplicity = numbers->multiplicity;
  geometry.has_charge_and_multiplicity = true;
  cursor.take(LineRole::ChargeAndMultiplicity);
}

/// Takes a reference line, which may have no path.
void take_reference(LineCursor& cursor, LineRole role, std::string&& path,
                    std::string_view complaint, ParseResult& result) {
  if (path.empty()) {
    result.warnings.push_back(line_diagnostic(cursor.number(), complaint));
    cursor.take(role);
    return;
  }
  std::vector<std::string>& paths = result.input.geometry.xyz_files;
  paths.push_back(std::move(path));
  cursor.take(role, paths.size() - 1);
}

void read_trajectory(LineCursor& cursor, std::string path, ParseResult& result) {
  result.input.geometry.kind = GeometryKind::XyzTrajectory;
  take_reference(cursor, LineRole::Trajectory, std::move(path), message::trajectory_without_path,
                 result);
}

void read_xyz_files(LineCursor& cursor, ParseResult& result) {
  result.input.geometry.kind = GeometryKind::XyzFile;
  std::string keyword;
  std::string path;
  while (!cursor.at_end() && parse_xyz_reference(cursor.line(), keyword, path) &&
         keyword == xyz_keyword) {
    take_reference(cursor, LineRole::XyzReference, std::move(path), message::xyz_without_path,
                   result);
  }
}

void read_atoms(LineCursor& cursor, ParseResult& result) {
  std::vector<AtomRecord>& atoms = result.input.geometry.atoms;
  atoms.reserve(cursor.remaining());
  while (!cursor.at_end()) {
    AtomRecord& atom = atoms.emplace_back();
    if (!parse_atom_line(cursor.trimmed(), atom)) {
      atoms.pop_back();
      break;
    }
    if (!chem::elements::atomic_number_from_symbol(atom.symbol)) {
      result.warnings.push_back(unknown_element_diagnostic(cursor.number(), atom.symbol));
    }
    cursor.take(LineRole::Atom, atoms.size() - 1);
  }
  // Most inputs contain little except atoms, and then the reserved room was right. If it was not, a
  // document should not keep it for the rest of its life.
  if (atoms.size() <= atoms.capacity() / 2) atoms.shrink_to_fit();
  if (!atoms.empty()) result.input.geometry.kind = GeometryKind::Atoms;
}

/// The first line decides on the form; lines of another form after it are post-processing.
void read_coordinates(LineCursor& cursor, ParseResult& result) {
  if (cursor.at_end()) return;
  std::string keyword;
  std::string path;
  if (!parse_xyz_reference(cursor.line(), keyword, path)) {
    read_atoms(cursor, result);
  } else if (keyword == trajectory_keyword) {
    read_trajectory(cursor, std::move(path), result);
  } else {
    read_xyz_files(cursor, result);
  }
}

void read_post_lines(LineCursor& cursor, ParseResult& result) {
  std::vector<PostCommand>& commands = result.input.post_commands;
  while (!cursor.at_end()) {
    if (parse_post_line(cursor.trimmed(), commands.emplace_back())) {
      cursor.take(LineRole::PostCommand, commands.size() - 1);
    } else {
      commands.pop_back();
      result.warnings.push_back(line_diagnostic(cursor.number(), message::unrecognized_post_line));
      cursor.take(LineRole::Dropped);
    }
  }
}

ParseResult read_input(LineCursor& cursor) {
  ParseResult result;
  result.ok = true;
  read_header(cursor, result);
  read_charge_and_multiplicity(cursor, result.input.geometry);
  read_coordinates(cursor, result);
  read_post_lines(cursor, result);
  const GeometryBlock& geometry = result.input.geometry;
  if (geometry.kind == GeometryKind::None && !geometry.has_charge_and_multiplicity) {
    result.warnings.emplace_back(message::no_coordinates);
  }
  return result;
}

}  // namespace

ParseResult::~ParseResult() = default;

ParseResult parse_string(std::string_view text) {
  LineCursor cursor(text);
  return read_input(cursor);
}

ParsedLines parse_lines(std::string_view text) {
  LineCursor cursor(text);
  ParsedLines parsed;
  parsed.lines = locate_lines(text, cursor.all_lines());
  cursor.keep(parsed.lines);
  parsed.result = read_input(cursor);
  return parsed;
}

ParseResult parse_file(const std::string& path) {
  const std::optional<std::string> content = read_file_content(path);
  if (content) return parse_string(*content);
  ParseResult result;
  result.error = open_failure(path);
  return result;
}

}  // namespace kelp::input::quill
