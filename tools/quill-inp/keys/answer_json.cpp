#include "quill-inp/keys/answer_json.hpp"

#include <cstddef>
#include <cstdint>
#include <optional>
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

bool write_found(JsonWriter& json, const QuillInput& input, const CommandKey& key) {
  const HeaderCommand* command = find_command(input, key);
  if (command == nullptr) return false;
  if (!key.parameter) {
    json.member("command");
    write(json, *command);
    return true;
  }
  const std::optional<std::uint64_t> index = find_parameter_index(*command, *key.parameter);
  if (!index) return false;
  json.member("parameter");
  write(json, command->parameters[*index]);
  return true;
}

bool write_charge_line(JsonWriter& json, const GeometryBlock& geometry, std::int32_t number) {
  if (geometry.has_charge_and_multiplicity) json.member("value").integer(number);
  return geometry.has_charge_and_multiplicity;
}

bool write_texts(JsonWriter& json, std::string_view name, const std::vector<std::string>& texts) {
  if (texts.empty()) return false;
  json.member(name).begin_list(Layout::OneLine);
  for (const std::string& text : texts) json.text(text);
  json.end_list();
  return true;
}

bool write_atoms(JsonWriter& json, const std::vector<AtomRecord>& atoms) {
  if (atoms.empty()) return false;
  json.member("atoms").begin_list(Layout::OneLine);
  for (const AtomRecord& atom : atoms) write(json, atom);
  json.end_list();
  return true;
}

bool write_found(JsonWriter& json, const QuillInput& input, SpecialKey key) {
  const GeometryBlock& geometry = input.geometry;
  const bool has_atoms = !geometry.atoms.empty();
  switch (key) {
    case SpecialKey::Charge:
      return write_charge_line(json, geometry, geometry.charge);
    case SpecialKey::Multiplicity:
      return write_charge_line(json, geometry, geometry.multiplicity);
    case SpecialKey::Geometry:
      if (geometry.kind != GeometryKind::None) json.member("value").text(name_of(geometry.kind));
      return geometry.kind != GeometryKind::None;
    case SpecialKey::Files:
      return write_texts(json, "paths", geometry.xyz_files);
    case SpecialKey::Atoms:
      return write_atoms(json, geometry.atoms);
    case SpecialKey::Formula:
      if (has_atoms) json.member("value").text(to_formula(hill_composition(geometry.atoms)));
      return has_atoms;
    case SpecialKey::AtomCount:
      if (has_atoms) json.member("value").integer(static_cast<std::int64_t>(geometry.atoms.size()));
      return has_atoms;
    case SpecialKey::Keys:
      return write_texts(json, "keys", list_keys(input));
  }
  return false;
}

bool write_found(JsonWriter& json, const QuillInput& input, const PostKey& key) {
  const std::vector<std::size_t> indexes = find_post_commands(input, key);
  if (indexes.empty()) return false;
  json.member("lines").begin_list(Layout::OneLine);
  for (const std::size_t index : indexes) {
    const PostCommand& command = input.post_commands[index];
    const bool is_raw = command.kind == PostCommandKind::Raw;
    write(json, command, is_raw ? RawText::Written : RawText::LeftOut);
  }
  json.end_list();
  return true;
}

}  // namespace

bool write_answer(JsonWriter& json, const QuillInput& input, const Key& key) {
  return std::visit([&](const auto& any_key) { return write_found(json, input, any_key); }, key);
}

}  // namespace kelp::input::quill::tool
