#include "properties/counted_lines.hpp"

#include <cstddef>
#include <optional>
#include <set>
#include <string>

#include "properties/obvious_text.hpp"
#include "properties/violation.hpp"
#include "properties/warning_text.hpp"

namespace kelp::input::quill::obvious {

namespace {

std::set<std::size_t> lines_warned_of(const ParseResult& result, const std::string& message) {
  std::set<std::size_t> numbers;
  for (const std::string& warning : result.warnings) {
    const SplitWarning parts = split_warning(warning);
    if (parts.is_of_a_line && parts.message == message) numbers.insert(parts.line);
  }
  return numbers;
}

/// A role, and where it points, for each line that is not blank.
struct Part {
  LineRole role;
  std::optional<std::size_t> index = std::nullopt;
};

void add_each(std::vector<Part>& parts, LineRole role, std::size_t count) {
  for (std::size_t i = 0; i < count; ++i) parts.push_back({role, i});
}

/// The parts of the document in the order of their lines, those without a line in it left out.
std::vector<Part> parts_of(const QuillInput& input) {
  const GeometryBlock& geometry = input.geometry;
  std::vector<Part> parts;
  add_each(parts, LineRole::Command, input.commands.size());
  if (geometry.has_charge_and_multiplicity) parts.push_back({LineRole::ChargeAndMultiplicity});
  add_each(parts, LineRole::Atom, geometry.atoms.size());
  const bool is_trajectory = geometry.kind == GeometryKind::XyzTrajectory;
  add_each(parts, is_trajectory ? LineRole::Trajectory : LineRole::XyzReference,
           geometry.xyz_files.size());
  add_each(parts, LineRole::PostCommand, input.post_commands.size());
  return parts;
}

}  // namespace

std::vector<LineRecord> count_lines(std::string_view text, const ParseResult& result) {
  const auto xyz_without_path = lines_warned_of(result, "XYZ reference has no file path");
  const auto trajectory_without_path =
      lines_warned_of(result, "XYZTRAJ reference has no file path");
  const auto dropped = lines_warned_of(result, "ignored unrecognized QUILL post-processing line");
  const std::vector<Part> parts = parts_of(result.input);
  std::size_t next = 0;
  std::vector<LineRecord> records;
  std::size_t offset = 0;
  for (const std::string& line : lines(text)) {
    LineRecord record;
    record.offset = offset;
    record.length = line.size();
    offset += line.size();
    if (text.substr(offset, 1) == "\n") record.terminator_length = 1;
    if (text.substr(offset, 2) == "\r\n") record.terminator_length = 2;
    offset += record.terminator_length;
    const std::size_t number = records.size() + 1;
    if (xyz_without_path.count(number) != 0) {
      record.role = LineRole::XyzReference;
    } else if (trajectory_without_path.count(number) != 0) {
      record.role = LineRole::Trajectory;
    } else if (dropped.count(number) != 0) {
      record.role = LineRole::Dropped;
    } else if (!trim(line).empty()) {
      require(next < parts.size(), "every line that is not blank has a part", text);
      record.role = parts[next].role;
      record.index = parts[next].index;
      ++next;
    }
    records.push_back(record);
  }
  return records;
}

}  // namespace kelp::input::quill::obvious
