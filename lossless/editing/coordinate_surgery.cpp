#include "editing/coordinate_surgery.hpp"

#include <algorithm>

#include "editing/expected_lines.hpp"
#include "kelp/input/quill/lossless/equality.hpp"

namespace kelp::input::quill::lossless {

namespace {

/// How many lines the geometry takes, without the line of charge and multiplicity.
std::size_t count_parts(const GeometryBlock& geometry) {
  switch (geometry.kind) {
    case GeometryKind::None:
      return 0;
    case GeometryKind::Atoms:
      return geometry.atoms.size();
    case GeometryKind::XyzFile:
      return geometry.xyz_files.size();
    case GeometryKind::XyzTrajectory:
      return 1;
  }
  return 0;
}

std::string part_line(const GeometryBlock& geometry, std::size_t index) {
  if (geometry.kind == GeometryKind::Atoms) return atom_line(geometry.atoms[index]);
  return reference_line(geometry, index);
}

bool is_equal_part(const GeometryBlock& left, std::size_t left_index, const GeometryBlock& right,
                   std::size_t right_index) {
  if (left.kind != right.kind) return false;
  if (left.kind == GeometryKind::Atoms)
    return is_equal(left.atoms[left_index], right.atoms[right_index]);
  if (left.kind == GeometryKind::XyzTrajectory) return left.xyz_files == right.xyz_files;
  return left.xyz_files[left_index] == right.xyz_files[right_index];
}

std::size_t count_common_at_begin(const GeometryBlock& left, const GeometryBlock& right) {
  const std::size_t most = std::min(count_parts(left), count_parts(right));
  std::size_t count = 0;
  while (count < most && is_equal_part(left, count, right, count)) ++count;
  return count;
}

std::size_t count_common_at_end(const GeometryBlock& left, const GeometryBlock& right,
                                std::size_t common_at_begin) {
  const std::size_t left_count = count_parts(left);
  const std::size_t right_count = count_parts(right);
  const std::size_t most = std::min(left_count, right_count) - common_at_begin;
  std::size_t count = 0;
  while (count < most &&
         is_equal_part(left, left_count - count - 1, right, right_count - count - 1))
    ++count;
  return count;
}

}  // namespace

CoordinateSurgery::CoordinateSurgery(const ReadText& read, const GeometryBlock& after)
    : before_(read.result.input.geometry), after_(after) {
  for (std::size_t i = 0; i < read.lines.size(); ++i) {
    const LineRecord& line = read.lines[i];
    if (line.role == LineRole::ChargeAndMultiplicity) charge_line_ = i;
    if (line.role == LineRole::XyzReference && !line.index) {
      idle_lines_.push_back(i);
    } else if (line.role == LineRole::Atom || line.role == LineRole::XyzReference ||
               line.role == LineRole::Trajectory) {
      part_lines_.push_back(i);
    }
  }
}

void CoordinateSurgery::change_lines(EditedLines& lines) {
  change_charge_line(lines);
  adds_charge_line_ = after_.has_charge_and_multiplicity && !charge_line_;
  change_parts(lines);
  remove_idle_lines(lines);
}

void CoordinateSurgery::change_charge_line(EditedLines& lines) const {
  if (!charge_line_) return;
  if (!after_.has_charge_and_multiplicity) {
    lines.remove(*charge_line_);
  } else if (before_.charge != after_.charge || before_.multiplicity != after_.multiplicity) {
    lines.replace(*charge_line_, charge_and_multiplicity_line(after_));
  }
}

void CoordinateSurgery::change_parts(EditedLines& lines) {
  const std::size_t begin = count_common_at_begin(before_, after_);
  const std::size_t common_at_end = count_common_at_end(before_, after_, begin);
  const std::size_t old_end = count_parts(before_) - common_at_end;
  const std::size_t new_end = count_parts(after_) - common_at_end;
  const std::size_t paired_end = std::min(old_end, new_end);
  for (std::size_t i = begin; i < paired_end; ++i) {
    if (!is_equal_part(before_, i, after_, i)) lines.replace(part_lines_[i], part_line(after_, i));
  }
  for (std::size_t i = paired_end; i < old_end; ++i) lines.remove(part_lines_[i]);
  added_begin_ = paired_end;
  added_end_ = new_end;
}

/// A reference without a path says only that the coordinates are in files.
void CoordinateSurgery::remove_idle_lines(EditedLines& lines) const {
  if (after_.kind == before_.kind) return;
  for (const std::size_t line : idle_lines_) lines.remove(line);
}

void CoordinateSurgery::add_lines(EditedLines& lines, std::size_t end_of_header) const {
  if (has_section()) {
    add_charge_line(lines, adds_charge_line_ ? first_line() : 0);
    if (added_begin_ != added_end_) add_parts(lines, gap_after_parts(added_begin_));
  } else if (adds_charge_line_ || added_begin_ != added_end_) {
    const std::size_t gap = lines.begin_section(end_of_header);
    add_charge_line(lines, gap);
    add_parts(lines, gap);
    lines.end_section(gap);
  }
}

void CoordinateSurgery::add_charge_line(EditedLines& lines, std::size_t gap) const {
  if (adds_charge_line_) lines.insert(gap, charge_and_multiplicity_line(after_));
}

void CoordinateSurgery::add_parts(EditedLines& lines, std::size_t gap) const {
  for (std::size_t i = added_begin_; i < added_end_; ++i) lines.insert(gap, part_line(after_, i));
}

/// The first line of the geometry. A section without a charge line has one.
std::size_t CoordinateSurgery::first_line() const {
  if (part_lines_.empty()) return idle_lines_.front();
  if (idle_lines_.empty()) return part_lines_.front();
  return std::min(part_lines_.front(), idle_lines_.front());
}

std::size_t CoordinateSurgery::gap_after_parts(std::size_t count) const {
  if (count > 0) return part_lines_[count - 1] + 1;
  if (!part_lines_.empty()) return part_lines_.front();
  if (!idle_lines_.empty()) return idle_lines_.back() + 1;
  return *charge_line_ + 1;
}

}  // namespace kelp::input::quill::lossless
