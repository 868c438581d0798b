#include "properties/reading.hpp"

#include <algorithm>
#include <cstddef>

#include "properties/counted_lines.hpp"
#include "properties/obvious_elements.hpp"
#include "properties/obvious_reader.hpp"
#include "properties/obvious_text.hpp"
#include "properties/violation.hpp"
#include "properties/warning_text.hpp"
#include "support/comparison.hpp"

namespace kelp::input::quill {

namespace {

std::size_t count_non_blank_lines(std::string_view text) {
  const std::vector<std::string> lines = obvious::lines(text);
  return static_cast<std::size_t>(std::count_if(
      lines.begin(), lines.end(), [](const auto& line) { return !obvious::trim(line).empty(); }));
}

/// The warnings about lines of which nothing is in the document.
std::size_t count_dropped_lines(const std::vector<std::string>& warnings) {
  return static_cast<std::size_t>(
      std::count_if(warnings.begin(), warnings.end(), [](const auto& warning) {
        const std::string message = split_warning(warning).message;
        return message == "XYZ reference has no file path" ||
               message == "XYZTRAJ reference has no file path" ||
               message == "ignored unrecognized QUILL post-processing line";
      }));
}

bool is_trimmed(std::string_view text) { return obvious::trim(text) == text; }

bool is_normal_symbol(const std::string& symbol) {
  return !symbol.empty() && std::all_of(symbol.begin(), symbol.end(), obvious::is_letter) &&
         symbol == obvious::normal_symbol(symbol);
}

bool has_count_of_its_kind(const PostCommand& command) {
  const std::size_t count = command.atom_indices.size();
  switch (command.kind) {
    case PostCommandKind::AtomConstraint:
      return count == 1;
    case PostCommandKind::BondConstraint:
      return count == 2;
    case PostCommandKind::AngleConstraint:
      return count == 3;
    case PostCommandKind::DihedralConstraint:
      return count == 4;
    case PostCommandKind::Scan:
      return 2 <= count && count <= 4;
    case PostCommandKind::PostFile:
    case PostCommandKind::Raw:
      return count == 0;
  }
  return false;
}

bool is_well_formed(const PostCommand& command) {
  const bool is_scan = command.kind == PostCommandKind::Scan;
  const bool is_file = command.kind == PostCommandKind::PostFile;
  return has_count_of_its_kind(command) && command.scan_value.has_value() == is_scan &&
         command.scan_steps.has_value() == is_scan && command.post_file.empty() != is_file &&
         is_trimmed(command.post_file) && !command.raw_text.empty() && is_trimmed(command.raw_text);
}

}  // namespace

void check_outcome(std::string_view text, const ParseResult& result) {
  require(result.ok, "ok is true", text);
  require(result.error.empty(), "error is empty", text);
}

void check_that_no_line_is_lost(std::string_view text, const ParseResult& result) {
  const QuillInput& input = result.input;
  const std::size_t kept =
      input.commands.size() + (input.geometry.has_charge_and_multiplicity ? 1 : 0) +
      input.geometry.atoms.size() + input.geometry.xyz_files.size() + input.post_commands.size();
  require(kept + count_dropped_lines(result.warnings) == count_non_blank_lines(text),
          "no line is lost", text);
}

void check_warnings(std::string_view text, const ParseResult& result) {
  const GeometryBlock& geometry = result.input.geometry;
  const bool has_no_section =
      geometry.kind == GeometryKind::None && !geometry.has_charge_and_multiplicity;
  std::vector<std::string> of_lines = result.warnings;
  const bool says_so = !of_lines.empty() && of_lines.back() == "No QUILL coordinate section found";
  require(says_so == has_no_section, "the last warning says whether there is a section", text);
  if (says_so) of_lines.pop_back();

  std::uint64_t least = 1;
  for (const std::string& warning : of_lines) {
    const SplitWarning parts = split_warning(warning);
    require(parts.is_of_a_line, "a warning begins with the number of its line", text);
    require(least <= parts.line, "the numbers of the warnings never fall", text);
    require(parts.line <= obvious::lines(text).size(), "the line of a warning exists", text);
    least = parts.line;
  }
}

void check_geometry(std::string_view text, const ParseResult& result) {
  const GeometryBlock& geometry = result.input.geometry;
  const GeometryKind kind = geometry.kind;
  require((kind == GeometryKind::Atoms) == !geometry.atoms.empty(),
          "the kind is Atoms exactly when there are atoms", text);
  require(geometry.xyz_files.empty() || kind == GeometryKind::XyzFile ||
              kind == GeometryKind::XyzTrajectory,
          "paths belong to references", text);
  require(geometry.xyz_files.size() <= 1 || kind == GeometryKind::XyzFile,
          "a trajectory has at most one path", text);
  require(
      geometry.has_charge_and_multiplicity || (geometry.charge == 0 && geometry.multiplicity == 1),
      "without their line, charge and multiplicity are 0 and 1", text);
  for (const AtomRecord& atom : geometry.atoms)
    require(is_normal_symbol(atom.symbol), "symbols are spelled as elements are", text);
  for (const std::string& path : geometry.xyz_files)
    require(!path.empty() && is_trimmed(path), "paths have no outer blanks", text);
}

void check_post_commands(std::string_view text, const ParseResult& result) {
  for (const PostCommand& command : result.input.post_commands)
    require(is_well_formed(command), "a post-processing line has the parts of its kind", text);
}

void check_result(std::string_view text, const ParseResult& result) {
  check_outcome(text, result);
  check_that_no_line_is_lost(text, result);
  check_warnings(text, result);
  check_geometry(text, result);
  check_post_commands(text, result);
}

void check_lines(std::string_view text, const ParsedLines& parsed) {
  require(parsed.result == parse_string(text), "lines are read as a text is", text);
  std::size_t covered = 0;
  for (const LineRecord& line : parsed.lines) {
    require(line.offset == covered, "the records cover every byte", text);
    covered += line.length + line.terminator_length;
  }
  require(covered == text.size(), "the records cover every byte", text);
  require(parsed.lines == obvious::count_lines(text, parsed.result),
          "the records are those that counting gives", text);
}

void check_against_obvious_reader(std::string_view text, const ParseResult& result) {
  require(result == obvious::parse(text), "the result is that of the obvious reader", text);
}

}  // namespace kelp::input::quill
