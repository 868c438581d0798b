#include <cmath>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <string>
#include <vector>

#include <nlohmann/json.hpp>

#include "quill-inp/formats/document_json.hpp"
#include "quill-inp/formats/document_names.hpp"
#include "quill-inp/formats/json_text.hpp"
#include "quill-inp/process/trouble.hpp"
#include "quill-inp/text/suggestion.hpp"

namespace kelp::input::quill::tool {

namespace {

/// A JSON value and the path to it from the outermost object, for messages.
struct JsonPlace {
  const Json& value;
  std::string path;
};

std::string where(const JsonPlace& place) {
  return place.path.empty() ? "the outermost value" : place.path;
}

[[noreturn]] void throw_expected(const JsonPlace& place, const std::string& expected) {
  throw Trouble(where(place) + ": expected " + expected);
}

JsonPlace member(const JsonPlace& place, const std::string& name) {
  return {place.value[name], place.path + "/" + name};
}

JsonPlace entry(const JsonPlace& place, std::size_t index) {
  return {place.value[index], place.path + "/" + std::to_string(index)};
}

/// Throws unless the value is an object with no other members than these.
void require_object(const JsonPlace& place, const std::vector<std::string>& names) {
  if (!place.value.is_object()) throw_expected(place, "an object");
  for (const auto& item : place.value.items()) {
    bool is_known = false;
    for (const std::string& name : names) is_known = is_known || name == item.key();
    if (!is_known) {
      throw Trouble(where(place) + ": unknown member '" + item.key() + "'" +
                    suggestion(item.key(), names));
    }
  }
}

JsonPlace required(const JsonPlace& place, const std::string& name) {
  if (!place.value.contains(name)) throw_expected(place, "a member '" + name + "'");
  return member(place, name);
}

std::string read_string(const JsonPlace& place) {
  return string_from_json(place.value, where(place));
}

double read_number(const JsonPlace& place) { return number_from_json(place.value, where(place)); }

std::int32_t read_integer(const JsonPlace& place) {
  using Limits = std::numeric_limits<std::int32_t>;
  const double number = place.value.is_number() ? place.value.get<double>() : std::nan("");
  // A double holds every integer of this size exactly, and 2.0 is an integer in JSON.
  const bool is_integer =
      std::trunc(number) == number && Limits::min() <= number && number <= Limits::max();
  if (!is_integer) throw_expected(place, "a 32-bit integer");
  return static_cast<std::int32_t>(number);
}

bool read_truth(const JsonPlace& place) {
  if (!place.value.is_boolean()) throw_expected(place, "true or false");
  return place.value.get<bool>();
}

template <typename Names>
auto read_kind(const JsonPlace& place, const Names& names) {
  std::vector<std::string> known;
  for (const auto& row : names) {
    if (place.value.is_string() && place.value.get_ref<const std::string&>() == row.name)
      return row.kind;
    known.emplace_back(row.name);
  }
  std::string expected = "one of";
  for (const std::string& name : known)
    expected += (name == known.front() ? " '" : ", '") + name + "'";
  throw_expected(place, expected);
}

template <typename Entry>
std::vector<Entry> read_list(const JsonPlace& place, Entry (*read_entry)(const JsonPlace&)) {
  if (!place.value.is_array()) throw_expected(place, "a list");
  std::vector<Entry> entries;
  entries.reserve(place.value.size());
  for (std::size_t i = 0; i < place.value.size(); ++i)
    entries.push_back(read_entry(entry(place, i)));
  return entries;
}

/// Reads a member into `target`, which is unchanged when there is no such member.
template <typename Target, typename Value>
void read_optional(const JsonPlace& place, const std::string& name, Target& target,
                   Value (*read)(const JsonPlace&)) {
  if (place.value.contains(name)) target = read(member(place, name));
}

template <typename Entry>
void read_optional_list(const JsonPlace& place, const std::string& name, std::vector<Entry>& target,
                        Entry (*read_entry)(const JsonPlace&)) {
  if (place.value.contains(name)) target = read_list(member(place, name), read_entry);
}

CommandParameter read_parameter(const JsonPlace& place) {
  require_object(place, {"name", "value"});
  CommandParameter parameter(read_string(required(place, "name")));
  read_optional(place, "value", parameter.value, read_string);
  return parameter;
}

HeaderCommand read_command(const JsonPlace& place) {
  require_object(place, {"name", "kind", "value", "parameters"});
  HeaderCommand command(read_string(required(place, "name")));
  command.kind = read_kind(required(place, "kind"), command_kind_names);
  read_optional(place, "value", command.value, read_string);
  read_optional_list(place, "parameters", command.parameters, read_parameter);
  return command;
}

AtomRecord read_atom(const JsonPlace& place) {
  require_object(place, {"symbol", "x", "y", "z"});
  return {read_string(required(place, "symbol")), read_number(required(place, "x")),
          read_number(required(place, "y")), read_number(required(place, "z"))};
}

GeometryBlock read_geometry(const JsonPlace& place) {
  require_object(place, {"kind", "charge", "multiplicity", "has_charge_and_multiplicity", "atoms",
                         "xyz_files"});
  GeometryBlock geometry;
  geometry.kind = read_kind(required(place, "kind"), geometry_kind_names);
  read_optional(place, "charge", geometry.charge, read_integer);
  read_optional(place, "multiplicity", geometry.multiplicity, read_integer);
  geometry.has_charge_and_multiplicity =
      place.value.contains("charge") || place.value.contains("multiplicity");
  read_optional(place, "has_charge_and_multiplicity", geometry.has_charge_and_multiplicity,
                read_truth);
  read_optional_list(place, "atoms", geometry.atoms, read_atom);
  read_optional_list(place, "xyz_files", geometry.xyz_files, read_string);
  return geometry;
}

PostCommand read_post_command(const JsonPlace& place) {
  require_object(place,
                 {"kind", "atom_indices", "scan_value", "scan_steps", "post_file", "raw_text"});
  PostCommand command(read_kind(required(place, "kind"), post_line_shapes));
  read_optional_list(place, "atom_indices", command.atom_indices, read_integer);
  read_optional(place, "scan_value", command.scan_value, read_number);
  read_optional(place, "scan_steps", command.scan_steps, read_integer);
  read_optional(place, "post_file", command.post_file, read_string);
  read_optional(place, "raw_text", command.raw_text, read_string);
  return command;
}

}  // namespace

QuillInput document_from_json(std::string_view text) {
  const Json json = parse_json(text);
  const JsonPlace document{json, ""};
  require_object(document, {"commands", "geometry", "post_commands"});
  QuillInput input;
  read_optional_list(document, "commands", input.commands, read_command);
  read_optional(document, "geometry", input.geometry, read_geometry);
  read_optional_list(document, "post_commands", input.post_commands, read_post_command);
  return input;
}

}  // namespace kelp::input::quill::tool
