#include "properties/made_document.hpp"

#include <cstddef>

namespace kelp::input::quill {

namespace {

/// One of the kinds that exist or, seldom, any number.
template <typename Kind>
Kind made_kind(ByteSource& source, std::size_t count) {
  const std::size_t choice = source.below(32);
  if (choice == 31) return static_cast<Kind>(source.integer());
  return static_cast<Kind>(choice % count);
}

/// What a kind does not call for is there now and then all the same.
bool has_surplus(ByteSource& source) { return source.below(8) == 7; }

template <typename T, typename Make>
std::vector<T> made_list(ByteSource& source, Make make) {
  std::vector<T> list;
  for (std::size_t count = source.below(5); count > 0; --count) list.push_back(make(source));
  return list;
}

/// As many atom numbers as the kind calls for, or any.
std::vector<std::int32_t> made_numbers_for(PostCommandKind kind, ByteSource& source) {
  const auto kind_number = static_cast<std::size_t>(kind);
  if (kind_number > 4 || has_surplus(source)) return made_atom_numbers(source);
  std::vector<std::int32_t> numbers;
  for (std::size_t i = 0; i < (kind_number == 4 ? 3 : kind_number + 1); ++i)
    numbers.push_back(source.integer());
  return numbers;
}

GeometryBlock made_geometry(ByteSource& source) {
  GeometryBlock geometry;
  geometry.kind = made_kind<GeometryKind>(source, 4);
  geometry.has_charge_and_multiplicity = source.flip();
  if (geometry.has_charge_and_multiplicity || has_surplus(source)) {
    geometry.charge = source.integer();
    geometry.multiplicity = source.integer();
  }
  // What an edit puts out of force must not be missed, so both lists are there often.
  const bool has_both = source.below(3) == 2;
  if (geometry.kind == GeometryKind::Atoms || has_both) geometry.atoms = made_atoms(source);
  if (geometry.kind != GeometryKind::Atoms || has_both) geometry.xyz_files = made_paths(source);
  return geometry;
}

}  // namespace

CommandParameter made_parameter(ByteSource& source) {
  CommandParameter parameter(source.text());
  if (source.flip()) parameter.value = source.text();
  return parameter;
}

std::vector<CommandParameter> made_parameters(ByteSource& source) {
  return made_list<CommandParameter>(source, made_parameter);
}

HeaderCommand made_command(ByteSource& source) {
  HeaderCommand command{source.text(), made_kind<HeaderCommandKind>(source, 3)};
  if (command.kind == HeaderCommandKind::Assignment ? !has_surplus(source) : has_surplus(source))
    command.value = source.text();
  if (command.kind == HeaderCommandKind::ParameterList || has_surplus(source))
    command.parameters = made_parameters(source);
  return command;
}

AtomRecord made_atom(ByteSource& source) {
  // One is too long for the inside of a string.
  static const char* const symbols[] = {
      "H", "C", "Fe", "Cl", "Xx", "Xyz", "Unobtainiumofthefinestsort"};
  const std::size_t choice = source.below(8);
  return {choice < 7 ? symbols[choice] : source.text(), source.number(), source.number(),
          source.number()};
}

std::vector<AtomRecord> made_atoms(ByteSource& source) {
  return made_list<AtomRecord>(source, made_atom);
}

std::vector<std::string> made_paths(ByteSource& source) {
  return made_list<std::string>(source, [](ByteSource& bytes) { return bytes.text(); });
}

std::vector<std::int32_t> made_atom_numbers(ByteSource& source) {
  return made_list<std::int32_t>(source, [](ByteSource& bytes) { return bytes.integer(); });
}

PostCommand made_post_command(ByteSource& source) {
  PostCommand command(made_kind<PostCommandKind>(source, 7));
  const bool is_scan = command.kind == PostCommandKind::Scan;
  const bool is_file = command.kind == PostCommandKind::PostFile;
  const bool is_raw = command.kind == PostCommandKind::Raw;
  if (!is_file && !is_raw) command.atom_indices = made_numbers_for(command.kind, source);
  if (is_scan != has_surplus(source)) command.scan_value = source.number();
  if (is_scan != has_surplus(source)) command.scan_steps = source.integer();
  if (is_file != has_surplus(source)) command.post_file = source.text();
  if (is_raw != has_surplus(source)) command.raw_text = source.text();
  return command;
}

QuillInput made_document(ByteSource& source) {
  QuillInput document;
  document.commands = made_list<HeaderCommand>(source, made_command);
  document.geometry = made_geometry(source);
  document.post_commands = made_list<PostCommand>(source, made_post_command);
  return document;
}

}  // namespace kelp::input::quill
