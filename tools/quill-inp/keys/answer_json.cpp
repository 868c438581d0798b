#include "quill-inp/keys/answer_json.hpp"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "quill-inp/formats/composition.hpp"
#include "quill-inp/formats/document_json.hpp"
#include "quill-inp/formats/document_names.hpp"
#include "quill-inp/keys/answer.hpp"
#include "quill-inp/keys/key_list.hpp"

namespace kelp::input::quill::tool {

namespace {

using Layout = JsonWriter::Layout;

void write_found(JsonWriter& json, const QuillInput& input, const CommandKey& key) {
  const HeaderCommand& command = *find_command(input, key);
  if (!key.parameter) {
    json.member("command");
    write(json, command);
    return;
  }
  const std::uint64_t index = find_parameter_index(command, *key.parameter).value();
  json.member("parameter");
  write(json, command.parameters[index]);
}

void write_texts(JsonWriter& json, std::string_view name, const std::vector<std::string>& texts) {
  json.member(name).begin_list(Layout::OneLine);
  for (const std::string& text : texts) json.text(text);
  json.end_list();
}

void write_atoms(JsonWriter& json, const std::vector<AtomRecord>& atoms) {
  json.member("atoms").begin_list(Layout::OneLine);
  for (const AtomRecord& atom : atoms) write(json, atom);
  json.end_list();
}

void write_found(JsonWriter& json, const QuillInput& input, SpecialKey key) {
  const GeometryBlock& geometry = input.geometry;
  switch (key) {
    case SpecialKey::Charge:
      json.member("value").integer(geometry.charge);
      break;
    case SpecialKey::Multiplicity:
      json.member("value").integer(geometry.multiplicity);
      break;
    case SpecialKey::Geometry:
      json.member("value").text(name_of(geometry.kind));
      break;
    case SpecialKey::Files:
      write_texts(json, "paths", geometry.xyz_files);
      break;
    case SpecialKey::Atoms:
      write_atoms(json, geometry.atoms);
      break;
    case SpecialKey::Formula:
      json.member("value").text(to_formula(hill_composition(geometry.atoms)));
      break;
    case SpecialKey::AtomCount:
      json.member("value").integer(static_cast<std::int64_t>(geometry.atoms.size()));
      break;
    case SpecialKey::Keys:
      write_texts(json, "keys", list_keys(input));
      break;
  }
}

void write_found(JsonWriter& json, const QuillInput& input, const PostKey& key) {
  json.member("lines").begin_list(Layout::OneLine);
  for (const std::size_t index : find_post_commands(input, key)) {
    const PostCommand& command = input.post_commands[index];
    const bool is_raw = command.kind == PostCommandKind::Raw;
    write(json, command, is_raw ? RawText::Written : RawText::LeftOut);
  }
  json.end_list();
}

}  // namespace

bool write_answer(JsonWriter& json, const QuillInput& input, const Key& key) {
  if (!has_answer(input, key)) return false;
  std::visit([&](const auto& any_key) { write_found(json, input, any_key); }, key);
  return true;
}

}  // namespace kelp::input::quill::tool
