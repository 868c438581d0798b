#include <optional>
#include <string_view>

#include "quill-inp/formats/composition.hpp"
#include "quill-inp/formats/document_json.hpp"
#include "quill-inp/formats/document_names.hpp"
#include "quill-inp/summary/command_roles.hpp"
#include "quill-inp/summary/summary.hpp"
#include "reader/diagnostics.hpp"

namespace kelp::input::quill::tool {

namespace {

using Layout = JsonWriter::Layout;

void write_list(JsonWriter& json, std::string_view name,
                const std::vector<const HeaderCommand*>& commands) {
  json.member(name).begin_list(Layout::OneLine);
  for (const HeaderCommand* command : commands) write(json, *command);
  json.end_list();
}

void write_text_or_null(JsonWriter& json, std::string_view name,
                        const std::optional<std::string>& text) {
  json.member(name);
  if (text) {
    json.text(*text);
  } else {
    json.null();
  }
}

void write_commands(JsonWriter& json, const CommandRoles& roles) {
  write_list(json, "tasks", roles.tasks);
  write_text_or_null(json, "model", roles.model);
  write_text_or_null(json, "device", roles.device);
  write_list(json, "other_commands", roles.others);
}

void write_number_or_null(JsonWriter& json, std::string_view name, bool is_there,
                          std::int32_t number) {
  json.member(name);
  if (is_there) {
    json.integer(number);
  } else {
    json.null();
  }
}

void write_count(JsonWriter& json, std::string_view name, std::size_t count) {
  json.member(name).integer(static_cast<std::int64_t>(count));
}

void write_composition(JsonWriter& json, const Composition& composition) {
  json.member("composition").begin_list(Layout::OneLine);
  for (const auto& [symbol, count] : composition) {
    json.begin_object(Layout::OneLine);
    json.member("symbol").text(symbol);
    write_count(json, "count", count);
    json.end_object();
  }
  json.end_list();
}

void write_geometry(JsonWriter& json, const GeometryBlock& geometry, const Composition& composition,
                    std::string_view formula) {
  const bool has_line = geometry.has_charge_and_multiplicity;
  write_number_or_null(json, "charge", has_line, geometry.charge);
  write_number_or_null(json, "multiplicity", has_line, geometry.multiplicity);
  json.member("geometry").text(name_of(geometry.kind));
  write_count(json, "atoms", geometry.atoms.size());
  json.member("formula").text(formula);
  write_composition(json, composition);
  json.member("files").begin_list(Layout::OneLine);
  for (const std::string& path : geometry.xyz_files) json.text(path);
  json.end_list();
}

/// Returns the name of the list for a kind of post-processing line.
std::string_view list_name(PostCommandKind kind) {
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

void write_post_entry(JsonWriter& json, const PostCommand& command) {
  if (command.kind == PostCommandKind::PostFile) {
    json.text(command.post_file);
  } else if (command.kind == PostCommandKind::Raw) {
    json.text(command.raw_text);
  } else {
    write(json, command, RawText::LeftOut);
  }
}

void write_post_commands(JsonWriter& json, const std::vector<PostCommand>& commands) {
  for (const std::string_view name : {"constraints", "scans", "post_files", "raw_lines"}) {
    json.member(name).begin_list(Layout::OneLine);
    for (const PostCommand& command : commands) {
      if (list_name(command.kind) == name) write_post_entry(json, command);
    }
    json.end_list();
  }
}

void write_warning(JsonWriter& json, const DiagnosticParts& warning) {
  json.begin_object(Layout::OneLine);
  json.member("line");
  if (warning.line) {
    json.integer(static_cast<std::int64_t>(*warning.line));
  } else {
    json.null();
  }
  json.member("message").text(warning.message);
  json.end_object();
}

}  // namespace

void write_summary_json(const std::string& name, const ParseResult& result,
                        const JsonWriter::Sink& sink) {
  // Everything that takes memory is made before the first byte is written.
  const CommandRoles roles = sort_commands(result.input);
  const Composition composition = hill_composition(result.input.geometry.atoms);
  const std::string formula = to_formula(composition);
  JsonWriter json(sink);
  json.begin_object(Layout::OneLine);
  json.member("file").text(name);
  write_commands(json, roles);
  write_geometry(json, result.input.geometry, composition, formula);
  write_post_commands(json, result.input.post_commands);
  json.member("warnings").begin_list(Layout::OneLine);
  for (const std::string& warning : result.warnings) write_warning(json, split_diagnostic(warning));
  json.end_list();
  json.end_object();
  json.finish();
}

}  // namespace kelp::input::quill::tool
