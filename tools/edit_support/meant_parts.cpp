#include "edit_support/meant_parts.hpp"

#include "edit_support/part_text.hpp"
#include "edit_support/part_words.hpp"
#include "edit_support/value_spelling.hpp"
#include "kelp/core/text.hpp"
#include "kelp/input/quill/writer.hpp"

namespace kelp::input::quill::edit_support {

namespace {

void add_parts(std::vector<MeantPart>& parts, LineRole role, std::size_t count) {
  for (std::size_t i = 0; i < count; ++i) parts.push_back({role, i});
}

void add_geometry_parts(std::vector<MeantPart>& parts, const GeometryBlock& geometry) {
  if (geometry.has_charge_and_multiplicity) parts.push_back({LineRole::ChargeAndMultiplicity});
  if (geometry.kind == GeometryKind::Atoms) add_parts(parts, LineRole::Atom, geometry.atoms.size());
  if (geometry.kind == GeometryKind::XyzFile)
    add_parts(parts, LineRole::XyzReference, geometry.xyz_files.size());
  if (geometry.kind != GeometryKind::XyzTrajectory) return;
  parts.push_back({LineRole::Trajectory});
  if (!geometry.xyz_files.empty()) parts.back().index = 0;
}

}  // namespace

std::vector<MeantPart> list_parts(const QuillInput& input) {
  std::vector<MeantPart> parts;
  add_parts(parts, LineRole::Command, input.commands.size());
  add_geometry_parts(parts, input.geometry);
  add_parts(parts, LineRole::PostCommand, input.post_commands.size());
  return parts;
}

std::string line_text(const MeantPart& part, const QuillInput& input) {
  switch (part.role) {
    case LineRole::Command:
      return to_string(spell(input.commands[part.index.value()]).command);
    case LineRole::ChargeAndMultiplicity:
      return charge_and_multiplicity_text(input.geometry);
    case LineRole::Atom:
      return atom_text(input.geometry.atoms[part.index.value()]);
    case LineRole::XyzReference:
    case LineRole::Trajectory:
      return reference_text(input.geometry, part.index.value_or(0));
    case LineRole::PostCommand:
      return to_string(input.post_commands[part.index.value()]);
    case LineRole::Blank:
    case LineRole::Dropped:
      break;
  }
  return {};
}

bool may_stand_for(std::string_view content, const MeantPart& part, const QuillInput& input) {
  const std::string trimmed = core::text::trim(content);
  if (trimmed == core::text::trim(line_text(part, input))) return true;
  return part.role == LineRole::PostCommand &&
         trimmed == core::text::trim(input.post_commands[part.index.value()].raw_text);
}

std::string name_part(const MeantPart& part, const QuillInput& input) {
  switch (part.role) {
    case LineRole::Command:
      return "a header command";
    case LineRole::ChargeAndMultiplicity:
      return "charge and multiplicity";
    case LineRole::Atom:
      return "an atom of element " + input.geometry.atoms.at(part.index.value()).symbol;
    case LineRole::XyzReference:
      return part.index ? "an XYZ reference" : "an XYZ reference without a path";
    case LineRole::Trajectory:
      return part.index ? "a trajectory reference" : "a trajectory reference without a path";
    case LineRole::PostCommand:
      return words(input.post_commands.at(part.index.value()).kind);
    case LineRole::Blank:
    case LineRole::Dropped:
      break;
  }
  return "nothing";
}

}  // namespace kelp::input::quill::edit_support
