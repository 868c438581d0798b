#include "kelp/input/quill/reader.hpp"

#include <optional>
#include <utility>

#include "kelp/chem/elements.hpp"
#include "reader/coordinate_lines.hpp"
#include "reader/diagnostics.hpp"
#include "reader/file_content.hpp"
#include "reader/header_line.hpp"
#include "reader/line_cursor.hpp"
#include "reader/post_line.hpp"

namespace kelp::input::quill {

namespace {

void read_header(LineCursor& cursor, ParseResult& result) {
  for (; !cursor.at_end() && cursor.trimmed().front() == '#'; cursor.advance()) {
    result.input.commands.push_back(
        parse_header_command_line(cursor.line(), result.warnings, cursor.number()));
  }
}

void read_charge_and_multiplicity(LineCursor& cursor, GeometryBlock& geometry) {
  if (cursor.at_end()) return;
  const auto numbers = parse_charge_and_multiplicity(cursor.trimmed());
  if (!numbers) return;
  geometry.charge = numbers->charge;
  geometry.multiplicity = numbers->multiplicity;
  geometry.has_charge_and_multiplicity = true;
  cursor.advance();
}

void store_path(std::string&& path, std::string_view complaint, const LineCursor& cursor,
                ParseResult& result) {
  if (path.empty()) {
    result.warnings.push_back(line_diagnostic(cursor.number(), complaint));
  } else {
    result.input.geometry.xyz_files.push_back(std::move(path));
  }
}

void read_trajectory(LineCursor& cursor, std::string path, ParseResult& result) {
  result.input.geometry.kind = GeometryKind::XyzTrajectory;
  store_path(std::move(path), message::trajectory_without_path, cursor, result);
  cursor.advance();
}

void read_xyz_files(LineCursor& cursor, ParseResult& result) {
  result.input.geometry.kind = GeometryKind::XyzFile;
  std::string keyword;
  std::string path;
  while (!cursor.at_end() && parse_xyz_reference(cursor.line(), keyword, path) &&
         keyword == xyz_keyword) {
    store_path(std::move(path), message::xyz_without_path, cursor, result);
    cursor.advance();
  }
}

void read_atoms(LineCursor& cursor, ParseResult& result) {
  std::vector<AtomRecord>& atoms = result.input.geometry.atoms;
  atoms.reserve(cursor.remaining());
  for (; !cursor.at_end(); cursor.advance()) {
    AtomRecord& atom = atoms.emplace_back();
    if (!parse_atom_line(cursor.trimmed(), atom)) {
      atoms.pop_back();
      break;
    }
    if (!chem::elements::atomic_number_from_symbol(atom.symbol)) {
      result.warnings.push_back(unknown_element_diagnostic(cursor.number(), atom.symbol));
    }
  }
  // Most inputs hold little but atoms, and then the room reserved was right. Where it was not, a
  // document should not hold on to it for the rest of its life.
  if (atoms.size() <= atoms.capacity() / 2) atoms.shrink_to_fit();
  if (!atoms.empty()) result.input.geometry.kind = GeometryKind::Atoms;
}

/// The first line decides on the form; what stands in another form after it is post-processing.
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
  for (; !cursor.at_end(); cursor.advance()) {
    if (!parse_post_line(cursor.trimmed(), commands.emplace_back())) {
      commands.pop_back();
      result.warnings.push_back(line_diagnostic(cursor.number(), message::unrecognized_post_line));
    }
  }
}

}  // namespace

ParseResult parse_string(std::string_view text) {
  ParseResult result;
  result.ok = true;
  LineCursor cursor(text);
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

ParseResult parse_file(const std::string& path) {
  const std::optional<std::string> content = read_file_content(path);
  if (content) return parse_string(*content);
  ParseResult result;
  result.error = open_failure(path);
  return result;
}

}  // namespace kelp::input::quill
