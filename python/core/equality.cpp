#include "core/equality.hpp"

#include <algorithm>
#include <vector>

#include "kelp/input/quill/lossless/equality.hpp"

namespace kelp::input::quill::python {

namespace {

template <typename Part>
bool is_same_list(const std::vector<Part>& left, const std::vector<Part>& right) {
  return std::equal(
      left.begin(), left.end(), right.begin(), right.end(),
      [](const Part& one, const Part& other) { return lossless::is_equal(one, other); });
}

}  // namespace

bool is_same(const CommandParameter& left, const CommandParameter& right) {
  return left.name == right.name && left.value == right.value;
}

bool is_same(const GeometryBlock& left, const GeometryBlock& right) {
  return left.kind == right.kind && left.charge == right.charge &&
         left.multiplicity == right.multiplicity &&
         left.has_charge_and_multiplicity == right.has_charge_and_multiplicity &&
         is_same_list(left.atoms, right.atoms) && left.xyz_files == right.xyz_files;
}

bool is_same(const QuillInput& left, const QuillInput& right) {
  return is_same_list(left.commands, right.commands) && is_same(left.geometry, right.geometry) &&
         is_same_list(left.post_commands, right.post_commands);
}

}  // namespace kelp::input::quill::python
