#include "quill-inp/formats/document_json.hpp"
#include "quill-inp/formats/document_names.hpp"

namespace kelp::input::quill::tool {

namespace {

using Layout = JsonWriter::Layout;

/// If the numbers are there, the document has a line with them. Numbers without a line need a
/// member that says so.
void write_charge_and_multiplicity(JsonWriter& json, const GeometryBlock& geometry) {
  const bool has_line = geometry.has_charge_and_multiplicity;
  const GeometryBlock fresh;
  if (!has_line && geometry.charge == fresh.charge && geometry.multiplicity == fresh.multiplicity)
    return;
  json.member("charge").integer(geometry.charge);
  json.member("multiplicity").integer(geometry.multiplicity);
  if (!has_line) json.member("has_charge_and_multiplicity").truth(false);
}

void write_atoms(JsonWriter& json, const std::vector<AtomRecord>& atoms) {
  json.member("atoms").begin_list(Layout::Lines);
  for (const AtomRecord& atom : atoms) write(json, atom);
  json.end_list();
}

void write_paths(JsonWriter& json, const std::vector<std::string>& paths) {
  json.member("xyz_files").begin_list(Layout::OneLine);
  for (const std::string& path : paths) json.text(path);
  json.end_list();
}

void write(JsonWriter& json, const GeometryBlock& geometry) {
  json.begin_object(Layout::Lines);
  json.member("kind").text(name_of(geometry.kind));
  write_charge_and_multiplicity(json, geometry);
  if (!geometry.atoms.empty()) write_atoms(json, geometry.atoms);
  if (!geometry.xyz_files.empty()) write_paths(json, geometry.xyz_files);
  json.end_object();
}

}  // namespace

void write(JsonWriter& json, const CommandParameter& parameter) {
  json.begin_object(Layout::OneLine);
  json.member("name").text(parameter.name);
  if (parameter.value) json.member("value").text(*parameter.value);
  json.end_object();
}

void write(JsonWriter& json, const AtomRecord& atom) {
  json.begin_object(Layout::OneLine);
  json.member("symbol").text(atom.symbol);
  json.member("x").number(atom.x);
  json.member("y").number(atom.y);
  json.member("z").number(atom.z);
  json.end_object();
}

void write(JsonWriter& json, const HeaderCommand& command) {
  json.begin_object(Layout::OneLine);
  json.member("name").text(command.name);
  json.member("kind").text(find_name(command_kind_names, command.kind));
  if (command.value) json.member("value").text(*command.value);
  if (!command.parameters.empty()) {
    json.member("parameters").begin_list(Layout::OneLine);
    for (const CommandParameter& parameter : command.parameters) write(json, parameter);
    json.end_list();
  }
  json.end_object();
}

void write(JsonWriter& json, const PostCommand& command, RawText raw_text) {
  json.begin_object(Layout::OneLine);
  json.member("kind").text(find_name(post_line_shapes, command.kind));
  if (!command.atom_indices.empty()) {
    json.member("atom_indices").begin_list(Layout::OneLine);
    for (const std::int32_t number : command.atom_indices) json.integer(number);
    json.end_list();
  }
  if (command.scan_value) json.member("scan_value").number(*command.scan_value);
  if (command.scan_steps) json.member("scan_steps").integer(*command.scan_steps);
  if (!command.post_file.empty()) json.member("post_file").text(command.post_file);
  if (raw_text == RawText::Written && !command.raw_text.empty())
    json.member("raw_text").text(command.raw_text);
  json.end_object();
}

void write_document_json(const QuillInput& input, const JsonWriter::Sink& sink) {
  JsonWriter json(sink);
  json.begin_object(Layout::Lines);
  json.member("commands").begin_list(Layout::Lines);
  for (const HeaderCommand& command : input.commands) write(json, command);
  json.end_list();
  json.member("geometry");
  write(json, input.geometry);
  json.member("post_commands").begin_list(Layout::Lines);
  for (const PostCommand& command : input.post_commands) write(json, command, RawText::Written);
  json.end_list();
  json.end_object();
  json.finish();
}

}  // namespace kelp::input::quill::tool
