#include "quill-inp/editing/addition_doubts.hpp"

#include <algorithm>
#include <cmath>
#include <optional>

#include "kelp/input/quill/lossless/equality.hpp"
#include "kelp/input/quill/writer.hpp"
#include "quill-inp/editing/referenced_atoms.hpp"

namespace kelp::input::quill::tool {

namespace {

using Kind = AdditionDoubt::Kind;

/// How many atoms a post-processing line can name. An input may refer to several structures, and a
/// line may be about the largest.
std::optional<std::size_t> count_atoms(const GeometryBlock& geometry, const std::string& folder) {
  if (geometry.kind == GeometryKind::Atoms) return geometry.atoms.size();
  std::optional<std::size_t> largest;
  for (const std::string& path : geometry.xyz_files) {
    const std::optional<std::size_t> count = count_referenced_atoms(folder, path);
    if (!count) return std::nullopt;
    largest = std::max(largest.value_or(0), *count);
  }
  return largest;
}

bool is_too_large(std::int32_t number, std::optional<std::size_t> atoms) {
  return atoms && number > 0 && static_cast<std::size_t>(number) > *atoms;
}

void judge_numbers(const PostCommand& command, std::optional<std::size_t> atoms,
                   std::vector<AdditionDoubt>& doubts) {
  const std::string line = to_string(command);
  const std::vector<std::int32_t>& numbers = command.atom_indices;
  for (auto number = numbers.begin(); number != numbers.end(); ++number) {
    const auto is_first = std::find(numbers.begin(), number, *number) == number;
    if (!is_first) {
      doubts.push_back({Kind::RepeatedNumber, line, *number});
    } else if (*number < 1) {
      doubts.push_back({Kind::NumberBelowOne, line, *number});
    } else if (is_too_large(*number, atoms)) {
      doubts.push_back({Kind::NumberTooLarge, line, *number, *atoms});
    }
  }
  if (command.scan_value && !std::isfinite(*command.scan_value))
    doubts.push_back({Kind::ScanNotFinite, line});
}

bool is_finite(const AtomRecord& atom) {
  return std::isfinite(atom.x) && std::isfinite(atom.y) && std::isfinite(atom.z);
}

void judge_atoms(const std::vector<AtomRecord>& before, const std::vector<AtomRecord>& after,
                 std::vector<AdditionDoubt>& doubts) {
  for (std::size_t i = 0; i < after.size(); ++i) {
    const bool was_there = i < before.size() && lossless::is_equal(before[i], after[i]);
    if (!is_finite(after[i]) && !was_there) {
      doubts.push_back({Kind::CoordinateNotFinite, {}, static_cast<std::int64_t>(i) + 1});
    }
  }
}

}  // namespace

std::vector<AdditionDoubt> find_addition_doubts(const QuillInput& before, const QuillInput& after,
                                                const std::string& folder) {
  std::vector<AdditionDoubt> doubts;
  judge_atoms(before.geometry.atoms, after.geometry.atoms, doubts);
  const std::size_t first = before.post_commands.size();
  if (after.post_commands.size() <= first) return doubts;
  const std::optional<std::size_t> atoms = count_atoms(after.geometry, folder);
  for (std::size_t i = first; i < after.post_commands.size(); ++i)
    judge_numbers(after.post_commands[i], atoms, doubts);
  return doubts;
}

}  // namespace kelp::input::quill::tool
