#include "properties/as_written.hpp"

#include <string>
#include <vector>

#include "properties/obvious_writer.hpp"

namespace kelp::input::quill {

namespace {

HeaderCommand as_written(const HeaderCommand& command) {
  HeaderCommand result(command.name);
  if (command.kind == HeaderCommandKind::Assignment) {
    result.kind = command.kind;
    result.value = command.value.value_or("");
  } else if (command.kind == HeaderCommandKind::ParameterList) {
    result.kind = command.kind;
    result.parameters = command.parameters;
  }
  return result;
}

GeometryBlock as_written(const GeometryBlock& geometry) {
  GeometryBlock result;
  result.kind = geometry.kind;
  if (geometry.has_charge_and_multiplicity) {
    result.charge = geometry.charge;
    result.multiplicity = geometry.multiplicity;
    result.has_charge_and_multiplicity = true;
  }
  if (geometry.kind == GeometryKind::Atoms) result.atoms = geometry.atoms;
  if (geometry.kind == GeometryKind::XyzFile) result.xyz_files = geometry.xyz_files;
  if (geometry.kind == GeometryKind::XyzTrajectory && !geometry.xyz_files.empty())
    result.xyz_files = {geometry.xyz_files.front()};
  return result;
}

PostCommand as_written(const PostCommand& command) {
  PostCommand result(command.kind);
  result.raw_text = obvious::written(command);
  if (command.kind == PostCommandKind::Raw) return result;
  if (command.kind == PostCommandKind::PostFile) {
    result.post_file = command.post_file;
    return result;
  }
  result.atom_indices = command.atom_indices;
  if (command.kind == PostCommandKind::Scan) {
    result.scan_value = command.scan_value;
    result.scan_steps = command.scan_steps;
  }
  return result;
}

}  // namespace

QuillInput as_written(const QuillInput& document) {
  QuillInput result;
  for (const HeaderCommand& command : document.commands)
    result.commands.push_back(as_written(command));
  result.geometry = as_written(document.geometry);
  for (const PostCommand& command : document.post_commands)
    result.post_commands.push_back(as_written(command));
  return result;
}

}  // namespace kelp::input::quill
