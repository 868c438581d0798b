#include "lossless/properties/made_edits.hpp"

#include <cmath>
#include <cstddef>
#include <limits>
#include <optional>
#include <string>
#include <utility>

#include "properties/made_document.hpp"

namespace kelp::input::quill {

namespace {

void keep_sign_of_nan_alone(double& number) {
  if (std::isnan(number))
    number = std::copysign(std::numeric_limits<double>::quiet_NaN(), std::signbit(number) ? -1 : 1);
}

void keep_signs_of_nan_alone(AtomRecord& atom) {
  keep_sign_of_nan_alone(atom.x);
  keep_sign_of_nan_alone(atom.y);
  keep_sign_of_nan_alone(atom.z);
}

}  // namespace

void keep_signs_of_nan_alone(QuillInput& document) {
  for (AtomRecord& atom : document.geometry.atoms) keep_signs_of_nan_alone(atom);
  for (PostCommand& command : document.post_commands) {
    if (command.scan_value) keep_sign_of_nan_alone(*command.scan_value);
  }
}

namespace lossless {

namespace {

std::uint64_t made_occurrence(ByteSource& source) { return source.below(3); }

Edit made_header_edit(std::size_t kind, ByteSource& source) {
  // Braces evaluate from left to right.
  switch (kind) {
    case 0:
      return SetFlag{source.text()};
    case 1:
      return SetAssignment{source.text(), source.text()};
    case 2:
      return SetTask{source.text(), made_parameters(source)};
    case 3:
      return SetParameter{source.text(), source.text(), source.text(), made_occurrence(source)};
    case 4:
      return RemoveParameter{source.text(), source.text(), made_occurrence(source)};
    case 5:
      return AddCommand{made_command(source)};
    case 6:
      return RemoveCommand{source.text()};
    default:
      return RemoveCommand{source.text(), made_occurrence(source)};
  }
}

SetAtoms made_atoms_edit(ByteSource& source) {
  SetAtoms edit{made_atoms(source)};
  for (AtomRecord& atom : edit.atoms) keep_signs_of_nan_alone(atom);
  return edit;
}

AddPostCommand made_post_edit(ByteSource& source) {
  AddPostCommand edit{made_post_command(source)};
  if (edit.command.scan_value) keep_sign_of_nan_alone(*edit.command.scan_value);
  return edit;
}

Edit made_edit(ByteSource& source) {
  constexpr std::size_t header_edits = 8;
  const std::size_t kind = source.below(header_edits + 7);
  switch (kind) {
    case header_edits:
      return SetChargeAndMultiplicity{source.integer(), source.integer()};
    case header_edits + 1:
      return SetChargeAndMultiplicity{std::nullopt, source.integer()};
    case header_edits + 2:
      return ClearChargeAndMultiplicity{};
    case header_edits + 3:
      return made_atoms_edit(source);
    case header_edits + 4:
      return SetXyzFiles{made_paths(source)};
    case header_edits + 5:
      return SetTrajectory{source.text()};
    case header_edits + 6:
      return made_post_edit(source);
    default:
      return made_header_edit(kind, source);
  }
}

}  // namespace

std::vector<Edit> made_edits(ByteSource& source) {
  std::vector<Edit> edits;
  for (std::size_t count = 1 + source.below(4); count > 0; --count)
    edits.push_back(made_edit(source));
  return edits;
}

}  // namespace lossless

}  // namespace kelp::input::quill
