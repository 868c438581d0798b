#include "properties/writing.hpp"

#include <string>
#include <utility>

#include "properties/as_written.hpp"
#include "properties/obvious_writer.hpp"
#include "properties/violation.hpp"

namespace kelp::input::quill {

namespace {

std::string text_of_pieces(const QuillInput& document) {
  const GeometryBlock& geometry = document.geometry;
  const bool has_coordinates =
      geometry.kind != GeometryKind::None || geometry.has_charge_and_multiplicity;
  std::string header;
  for (const HeaderCommand& command : document.commands) header += to_string(command) + "\n";
  std::string post_lines;
  for (const PostCommand& command : document.post_commands) post_lines += to_string(command) + "\n";

  std::string text = header;
  if (!header.empty() && (has_coordinates || !post_lines.empty())) text += "\n";
  if (has_coordinates) text += to_string(geometry);
  if (has_coordinates && !post_lines.empty()) text += "\n";
  return text + post_lines;
}

/// The builder sets a trajectory together with its path, and knows no kinds but those that exist.
bool can_be_built(const GeometryBlock& geometry) {
  return geometry.kind == GeometryKind::None || geometry.kind == GeometryKind::Atoms ||
         geometry.kind == GeometryKind::XyzFile ||
         (geometry.kind == GeometryKind::XyzTrajectory && !geometry.xyz_files.empty());
}

InputBuilder built(const QuillInput& document) {
  InputBuilder builder;
  const GeometryBlock& geometry = document.geometry;
  if (geometry.has_charge_and_multiplicity)
    builder.set_charge_and_multiplicity(geometry.charge, geometry.multiplicity);
  if (geometry.kind == GeometryKind::Atoms) builder.set_geometry(geometry.atoms);
  if (geometry.kind == GeometryKind::XyzFile) builder.set_xyz_files(geometry.xyz_files);
  if (geometry.kind == GeometryKind::XyzTrajectory)
    builder.set_xyz_trajectory(geometry.xyz_files.front());
  for (const HeaderCommand& command : document.commands) builder.add_command(command);
  for (const PostCommand& command : document.post_commands) builder.add_post_command(command);
  return builder;
}

}  // namespace

void check_writing(const QuillInput& document, std::string_view text) {
  QuillInput copy(document);
  require(copy.to_string() == text, "a copy gives the same text", text);
  QuillInput assigned;
  assigned = document;
  require(assigned.to_string() == text, "an assigned copy gives the same text", text);
  const QuillInput moved(std::move(copy));
  require(moved.to_string() == text, "a moved document gives the same text", text);
  require(InputEditor(document).to_string() == text, "an editor gives the same text", text);
  if (can_be_built(document.geometry))
    require(built(document).to_string() == text, "a builder gives the same text", text);
  require(text_of_pieces(document) == text, "the text is that of the pieces", text);
  require(as_written(document).to_string() == text, "what is not in force is not written", text);
}

void check_against_obvious_writer(const QuillInput& document, std::string_view text) {
  require(text == obvious::written(document), "the text is that of the obvious writer", text);
}

}  // namespace kelp::input::quill
