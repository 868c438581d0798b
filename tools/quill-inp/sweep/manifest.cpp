#include "quill-inp/sweep/manifest.hpp"

#include <cstddef>
#include <string_view>

#include "quill-inp/formats/json_writer.hpp"

namespace kelp::input::quill::tool {

namespace {

constexpr std::string_view json_lines_suffix = ".jsonl";

void append_cell(std::string& text, std::string_view cell) {
  for (const char c : cell) {
    switch (c) {
      case '\\':
        text += "\\\\";
        break;
      case '\t':
        text += "\\t";
        break;
      case '\n':
        text += "\\n";
        break;
      case '\r':
        text += "\\r";
        break;
      default:
        text += c;
    }
  }
}

void append_row(std::string& text, const ManifestEntry& row) {
  append_cell(text, row.file);
  text += '\t' + row.sha256;
  for (const std::string& value : row.values) {
    text += '\t';
    append_cell(text, value);
  }
  text += '\n';
}

/// Keys can be any text, but JsonWriter's names of members are letters. So the values are a list of
/// pairs.
void append_object(std::string& text, const std::vector<std::string>& keys,
                   const ManifestEntry& entry) {
  JsonWriter json([&](std::string_view piece) { text += piece; });
  json.begin_object(JsonWriter::Layout::OneLine);
  json.member("file").text(entry.file);
  json.member("sha256").text(entry.sha256);
  json.member("values").begin_list(JsonWriter::Layout::OneLine);
  for (std::size_t i = 0; i < keys.size(); ++i) {
    json.begin_object(JsonWriter::Layout::OneLine);
    json.member("key").text(keys[i]);
    json.member("value").text(entry.values[i]);
    json.end_object();
  }
  json.end_list();
  json.end_object();
  json.finish();
}

}  // namespace

std::string manifest_text(const std::string& name, const std::vector<std::string>& keys,
                          const std::vector<ManifestEntry>& entries) {
  std::string text;
  const bool is_json = name.size() >= json_lines_suffix.size() &&
                       name.substr(name.size() - json_lines_suffix.size()) == json_lines_suffix;
  if (!is_json) append_row(text, {"file", "sha256", keys});
  for (const ManifestEntry& entry : entries) {
    if (is_json) {
      append_object(text, keys, entry);
    } else {
      append_row(text, entry);
    }
  }
  return text;
}

}  // namespace kelp::input::quill::tool
