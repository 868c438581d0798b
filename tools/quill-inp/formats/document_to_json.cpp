#include <string>

#include <nlohmann/json.hpp>

#include "quill-inp/formats/document_json.hpp"
#include "quill-inp/formats/document_names.hpp"

namespace kelp::input::quill::tool {

namespace {

OrderedJson to_json(const CommandParameter& parameter) {
  OrderedJson json = OrderedJson::object();
  json["name"] = string_to_json(parameter.name);
  if (parameter.value) json["value"] = string_to_json(*parameter.value);
  return json;
}

OrderedJson to_json(const AtomRecord& atom) {
  OrderedJson json = OrderedJson::object();
  json["symbol"] = string_to_json(atom.symbol);
  json["x"] = number_to_json(atom.x);
  json["y"] = number_to_json(atom.y);
  json["z"] = number_to_json(atom.z);
  return json;
}

/// If the numbers are there, the document has a line with them. Numbers without a line need a
/// member that says so.
void add_charge_and_multiplicity(OrderedJson& json, const GeometryBlock& geometry) {
  const bool has_line = geometry.has_charge_and_multiplicity;
  const GeometryBlock fresh;
  if (!has_line && geometry.charge == fresh.charge && geometry.multiplicity == fresh.multiplicity)
    return;
  json["charge"] = geometry.charge;
  json["multiplicity"] = geometry.multiplicity;
  if (!has_line) json["has_charge_and_multiplicity"] = false;
}

OrderedJson to_json(const GeometryBlock& geometry) {
  OrderedJson json = OrderedJson::object();
  json["kind"] = std::string(name_of(geometry.kind));
  add_charge_and_multiplicity(json, geometry);
  if (!geometry.atoms.empty()) {
    OrderedJson& atoms = json["atoms"] = OrderedJson::array();
    for (const AtomRecord& atom : geometry.atoms) atoms.push_back(to_json(atom));
  }
  if (!geometry.xyz_files.empty()) {
    OrderedJson& files = json["xyz_files"] = OrderedJson::array();
    for (const std::string& path : geometry.xyz_files) files.push_back(string_to_json(path));
  }
  return json;
}

}  // namespace

OrderedJson to_json(const HeaderCommand& command) {
  OrderedJson json = OrderedJson::object();
  json["name"] = string_to_json(command.name);
  json["kind"] = std::string(find_name(command_kind_names, command.kind));
  if (command.value) json["value"] = string_to_json(*command.value);
  if (!command.parameters.empty()) {
    OrderedJson& parameters = json["parameters"] = OrderedJson::array();
    for (const CommandParameter& parameter : command.parameters)
      parameters.push_back(to_json(parameter));
  }
  return json;
}

OrderedJson to_json(const PostCommand& command) {
  OrderedJson json = OrderedJson::object();
  json["kind"] = std::string(find_name(post_line_shapes, command.kind));
  if (!command.atom_indices.empty()) json["atom_indices"] = command.atom_indices;
  if (command.scan_value) json["scan_value"] = number_to_json(*command.scan_value);
  if (command.scan_steps) json["scan_steps"] = *command.scan_steps;
  if (!command.post_file.empty()) json["post_file"] = string_to_json(command.post_file);
  if (!command.raw_text.empty()) json["raw_text"] = string_to_json(command.raw_text);
  return json;
}

std::string document_to_json(const QuillInput& input) {
  OrderedJson json = OrderedJson::object();
  json["commands"] = OrderedJson::array();
  for (const HeaderCommand& command : input.commands) json["commands"].push_back(to_json(command));
  json["geometry"] = to_json(input.geometry);
  json["post_commands"] = OrderedJson::array();
  for (const PostCommand& command : input.post_commands)
    json["post_commands"].push_back(to_json(command));
  return to_lines(json);
}

}  // namespace kelp::input::quill::tool
