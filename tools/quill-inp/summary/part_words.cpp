#include "quill-inp/summary/part_words.hpp"

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

#include "editing/phrases.hpp"
#include "model/post_line_shapes.hpp"
#include "quill-inp/formats/composition.hpp"
#include "quill-inp/text/counted.hpp"

namespace kelp::input::quill::tool {

namespace {

/// Returns what a scan of this number of atoms changes.
std::string_view scanned(std::size_t atoms) {
  constexpr std::string_view names[] = {"bond", "angle", "dihedral"};
  return 2 <= atoms && atoms <= 4 ? names[atoms - 2] : std::string_view("atoms");
}

std::string describe_atoms(std::string_view subject, const std::vector<std::int32_t>& numbers) {
  return std::string(subject) + " " + lossless::joined(numbers);
}

std::string describe_scan(const PostCommand& scan) {
  std::string text = describe_atoms(scanned(scan.atom_indices.size()), scan.atom_indices);
  if (scan.scan_value) text += ", value " + lossless::shortest_text(*scan.scan_value);
  if (scan.scan_steps)
    text += ", " + std::to_string(*scan.scan_steps) + (*scan.scan_steps == 1 ? " step" : " steps");
  return text;
}

std::string describe_constraint(const PostCommand& command) {
  const PostLineShape* shape = find_post_line_shape(command.kind);
  const std::string_view subject = shape == nullptr ? std::string_view("unknown") : shape->subject;
  return describe_atoms(subject, command.atom_indices);
}

}  // namespace

std::string content_words(const GeometryBlock& geometry) {
  switch (geometry.kind) {
    case GeometryKind::Atoms:
      return counted(geometry.atoms.size(), "atom") + ", " +
             to_formula(hill_composition(geometry.atoms));
    case GeometryKind::XyzFile:
      return counted(geometry.xyz_files.size(), "XYZ file");
    case GeometryKind::XyzTrajectory:
      return "a trajectory";
    case GeometryKind::None:
      break;
  }
  return "none";
}

std::string content_words(const PostCommand& command) {
  switch (command.kind) {
    case PostCommandKind::Scan:
      return describe_scan(command);
    case PostCommandKind::PostFile:
      return command.post_file;
    case PostCommandKind::Raw:
      return command.raw_text;
    default:
      return describe_constraint(command);
  }
}

}  // namespace kelp::input::quill::tool
