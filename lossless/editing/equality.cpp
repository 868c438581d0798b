#include "kelp/input/quill/lossless/equality.hpp"

#include <algorithm>

#include "editing/number_distance.hpp"

namespace kelp::input::quill::lossless {

namespace {

bool is_equal_parameter(const CommandParameter& left, const CommandParameter& right) {
  return left.name == right.name && left.value == right.value;
}

bool is_equal_value(const std::optional<double>& left, const std::optional<double>& right) {
  if (!left || !right) return left.has_value() == right.has_value();
  return is_equal_number(*left, *right);
}

}  // namespace

bool is_equal(const HeaderCommand& left, const HeaderCommand& right) {
  return left.name == right.name && left.kind == right.kind && left.value == right.value &&
         std::equal(left.parameters.begin(), left.parameters.end(), right.parameters.begin(),
                    right.parameters.end(), is_equal_parameter);
}

bool is_equal(const AtomRecord& left, const AtomRecord& right) {
  return left.symbol == right.symbol && is_equal_number(left.x, right.x) &&
         is_equal_number(left.y, right.y) && is_equal_number(left.z, right.z);
}

bool is_equal(const PostCommand& left, const PostCommand& right) {
  return left.kind == right.kind && left.atom_indices == right.atom_indices &&
         is_equal_value(left.scan_value, right.scan_value) && left.scan_steps == right.scan_steps &&
         left.post_file == right.post_file &&
         (left.kind != PostCommandKind::Raw || left.raw_text == right.raw_text);
}

}  // namespace kelp::input::quill::lossless
