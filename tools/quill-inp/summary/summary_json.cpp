#include <utility>

#include <nlohmann/json.hpp>

#include "quill-inp/formats/document_json.hpp"
#include "quill-inp/formats/document_names.hpp"
#include "quill-inp/summary/command_roles.hpp"
#include "quill-inp/summary/composition.hpp"
#include "quill-inp/summary/summary.hpp"
#include "reader/diagnostics.hpp"

namespace kelp::input::quill::tool {

namespace {

OrderedJson list_of(const std::vector<const HeaderCommand*>& commands) {
  OrderedJson list = OrderedJson::array();
  for (const HeaderCommand* command : commands) list.push_back(to_json(*command));
  return list;
}

OrderedJson list_of(const std::vector<std::string>& texts) {
  OrderedJson list = OrderedJson::array();
  for (const std::string& text : texts) list.push_back(string_to_json(text));
  return list;
}

void add_commands(OrderedJson& json, const QuillInput& input) {
  const CommandRoles roles = sort_commands(input);
  json["tasks"] = list_of(roles.tasks);
  json["model"] = roles.model ? string_to_json(*roles.model) : OrderedJson();
  json["device"] = roles.device ? string_to_json(*roles.device) : OrderedJson();
  json["other_commands"] = list_of(roles.others);
}

OrderedJson composition_to_json(const Composition& composition) {
  OrderedJson json = OrderedJson::array();
  for (const auto& [symbol, count] : composition) {
    OrderedJson entry = OrderedJson::object();
    entry["symbol"] = symbol;
    entry["count"] = count;
    json.push_back(std::move(entry));
  }
  return json;
}

void add_geometry(OrderedJson& json, const GeometryBlock& geometry) {
  const bool has_line = geometry.has_charge_and_multiplicity;
  json["charge"] = has_line ? OrderedJson(geometry.charge) : OrderedJson();
  json["multiplicity"] = has_line ? OrderedJson(geometry.multiplicity) : OrderedJson();
  const Composition composition = hill_composition(geometry.atoms);
  json["geometry"] = std::string(name_of(geometry.kind));
  json["atoms"] = geometry.atoms.size();
  json["formula"] = to_formula(composition);
  json["composition"] = composition_to_json(composition);
  json["files"] = list_of(geometry.xyz_files);
}

/// Returns the name of the list for a kind of post-processing line.
const char* list_name(PostCommandKind kind) {
  switch (kind) {
    case PostCommandKind::Scan:
      return "scans";
    case PostCommandKind::PostFile:
      return "post_files";
    case PostCommandKind::Raw:
      return "raw_lines";
    default:
      return "constraints";
  }
}

OrderedJson post_entry(const PostCommand& command) {
  if (command.kind == PostCommandKind::PostFile) return string_to_json(command.post_file);
  if (command.kind == PostCommandKind::Raw) return string_to_json(command.raw_text);
  OrderedJson json = to_json(command);
  json.erase("raw_text");
  return json;
}

void add_post_commands(OrderedJson& json, const std::vector<PostCommand>& commands) {
  for (const char* name : {"constraints", "scans", "post_files", "raw_lines"})
    json[name] = OrderedJson::array();
  for (const PostCommand& command : commands)
    json[list_name(command.kind)].push_back(post_entry(command));
}

OrderedJson warning_to_json(const DiagnosticParts& warning) {
  OrderedJson json = OrderedJson::object();
  json["line"] = warning.line ? OrderedJson(*warning.line) : OrderedJson();
  json["message"] = string_to_json(warning.message);
  return json;
}

}  // namespace

std::string summary_json(const std::string& name, const ParseResult& result) {
  OrderedJson json = OrderedJson::object();
  json["file"] = string_to_json(name);
  add_commands(json, result.input);
  add_geometry(json, result.input.geometry);
  add_post_commands(json, result.input.post_commands);
  json["warnings"] = OrderedJson::array();
  for (const std::string& warning : result.warnings)
    json["warnings"].push_back(warning_to_json(split_diagnostic(warning)));
  return to_one_line(json) + "\n";
}

}  // namespace kelp::input::quill::tool
