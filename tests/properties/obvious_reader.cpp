#include "properties/obvious_reader.hpp"

#include <cstddef>

#include "properties/obvious_elements.hpp"
#include "properties/obvious_text.hpp"

namespace kelp::input::quill::obvious {

namespace {

struct NumberedLine {
  std::uint64_t number;
  std::string text;
};

/// The lines that are not blank, the next one at the back.
std::vector<NumberedLine> remaining_lines(std::string_view text) {
  const std::vector<std::string> all = lines(text);
  std::vector<NumberedLine> remaining;
  for (std::size_t i = all.size(); i > 0; --i) {
    if (!trim(all[i - 1]).empty()) remaining.push_back({i, all[i - 1]});
  }
  return remaining;
}

std::string warning(const NumberedLine& line, const std::string& message) {
  return "Line " + std::to_string(line.number) + ": " + message;
}

void take_header(std::vector<NumberedLine>& remaining, ParseResult& result) {
  while (!remaining.empty() && trim(remaining.back().text)[0] == '#') {
    const HeaderLine read = header_line(remaining.back().text, remaining.back().number);
    result.input.commands.push_back(read.command);
    result.warnings.insert(result.warnings.end(), read.warnings.begin(), read.warnings.end());
    remaining.pop_back();
  }
}

void take_charge(std::vector<NumberedLine>& remaining, GeometryBlock& geometry) {
  if (remaining.empty()) return;
  const auto numbers = charge_line(remaining.back().text);
  if (!numbers) return;
  geometry.charge = numbers->first;
  geometry.multiplicity = numbers->second;
  geometry.has_charge_and_multiplicity = true;
  remaining.pop_back();
}

/// Takes the next line if it is a reference line with this keyword.
bool take_reference(std::vector<NumberedLine>& remaining, const std::string& keyword,
                    ParseResult& result) {
  if (remaining.empty()) return false;
  const auto reference = reference_line(remaining.back().text);
  if (!reference || reference->first != keyword) return false;
  if (reference->second.empty())
    result.warnings.push_back(warning(remaining.back(), keyword + " reference has no file path"));
  else
    result.input.geometry.xyz_files.push_back(reference->second);
  remaining.pop_back();
  return true;
}

bool take_atom(std::vector<NumberedLine>& remaining, ParseResult& result) {
  if (remaining.empty()) return false;
  const std::optional<AtomRecord> atom = atom_line(remaining.back().text);
  if (!atom) return false;
  if (!atomic_number(atom->symbol))
    result.warnings.push_back(
        warning(remaining.back(), "unknown element symbol '" + atom->symbol + "'"));
  result.input.geometry.atoms.push_back(*atom);
  remaining.pop_back();
  return true;
}

void take_coordinates(std::vector<NumberedLine>& remaining, ParseResult& result) {
  GeometryKind& kind = result.input.geometry.kind;
  if (take_reference(remaining, "XYZTRAJ", result)) {
    kind = GeometryKind::XyzTrajectory;
    return;
  }
  while (take_reference(remaining, "XYZ", result)) kind = GeometryKind::XyzFile;
  if (kind == GeometryKind::XyzFile) return;
  while (take_atom(remaining, result)) kind = GeometryKind::Atoms;
}

void take_post_lines(std::vector<NumberedLine>& remaining, ParseResult& result) {
  for (; !remaining.empty(); remaining.pop_back()) {
    const std::optional<PostCommand> command = post_line(remaining.back().text);
    if (command)
      result.input.post_commands.push_back(*command);
    else
      result.warnings.push_back(
          warning(remaining.back(), "ignored unrecognized QUILL post-processing line"));
  }
}

}  // namespace

ParseResult parse(std::string_view text) {
  ParseResult result;
  result.ok = true;
  std::vector<NumberedLine> remaining = remaining_lines(text);
  take_header(remaining, result);
  take_charge(remaining, result.input.geometry);
  take_coordinates(remaining, result);
  take_post_lines(remaining, result);
  const GeometryBlock& geometry = result.input.geometry;
  if (geometry.kind == GeometryKind::None && !geometry.has_charge_and_multiplicity)
    result.warnings.emplace_back("No QUILL coordinate section found");
  return result;
}

}  // namespace kelp::input::quill::obvious
