#include "support/comparison.hpp"

#include <cstdint>
#include <cstring>
#include <optional>

namespace kelp::input::quill {

namespace {

bool same_bits(double left, double right) {
  std::uint64_t left_bits = 0;
  std::uint64_t right_bits = 0;
  std::memcpy(&left_bits, &left, sizeof left);
  std::memcpy(&right_bits, &right, sizeof right);
  return left_bits == right_bits;
}

bool same_bits(const std::optional<double>& left, const std::optional<double>& right) {
  if (left.has_value() != right.has_value()) return false;
  return !left || same_bits(*left, *right);
}

}  // namespace

bool operator==(const CommandParameter& left, const CommandParameter& right) {
  return left.name == right.name && left.value == right.value;
}

bool operator==(const HeaderCommand& left, const HeaderCommand& right) {
  return left.name == right.name && left.kind == right.kind && left.value == right.value &&
         left.parameters == right.parameters;
}

bool operator==(const AtomRecord& left, const AtomRecord& right) {
  return left.symbol == right.symbol && same_bits(left.x, right.x) && same_bits(left.y, right.y) &&
         same_bits(left.z, right.z);
}

bool operator==(const GeometryBlock& left, const GeometryBlock& right) {
  return left.kind == right.kind && left.charge == right.charge &&
         left.multiplicity == right.multiplicity &&
         left.has_charge_and_multiplicity == right.has_charge_and_multiplicity &&
         left.atoms == right.atoms && left.xyz_files == right.xyz_files;
}

bool operator==(const PostCommand& left, const PostCommand& right) {
  return left.kind == right.kind && left.atom_indices == right.atom_indices &&
         same_bits(left.scan_value, right.scan_value) && left.scan_steps == right.scan_steps &&
         left.post_file == right.post_file && left.raw_text == right.raw_text;
}

bool operator==(const QuillInput& left, const QuillInput& right) {
  return left.commands == right.commands && left.geometry == right.geometry &&
         left.post_commands == right.post_commands;
}

bool operator==(const ParseResult& left, const ParseResult& right) {
  return left.input == right.input && left.ok == right.ok && left.error == right.error &&
         left.warnings == right.warnings;
}

bool operator==(const LineRecord& left, const LineRecord& right) {
  return left.role == right.role && left.index == right.index && left.offset == right.offset &&
         left.length == right.length && left.terminator_length == right.terminator_length;
}

}  // namespace kelp::input::quill
