#include "quill-inp/keys/answer.hpp"

#include <cstdint>
#include <vector>

#include "editing/phrases.hpp"
#include "kelp/input/quill/lossless/quoting.hpp"
#include "kelp/input/quill/lossless/wording.hpp"
#include "kelp/input/quill/writer.hpp"
#include "quill-inp/formats/composition.hpp"
#include "quill-inp/formats/document_names.hpp"
#include "quill-inp/keys/key_list.hpp"
#include "quill-inp/text/counted.hpp"
#include "quill-inp/text/suggestion.hpp"

namespace kelp::input::quill::tool {

namespace {

constexpr const char* no_value = "flag";

std::string command_answer(const HeaderCommand& command) {
  if (command.kind == HeaderCommandKind::Assignment) return command.value.value_or("");
  if (command.kind == HeaderCommandKind::Flag) return no_value;
  const HeaderCommand nameless("", command.kind, std::nullopt,
                               lossless::quote(command).command.parameters);
  return to_string(nameless).substr(1);
}

bool has_entry(const QuillInput& input, const CommandKey& key) {
  const HeaderCommand* command = find_command(input, key);
  if (command == nullptr || !key.parameter) return command != nullptr;
  return find_parameter_index(*command, *key.parameter).has_value();
}

bool has_entry(const QuillInput& input, SpecialKey key) {
  const GeometryBlock& geometry = input.geometry;
  switch (key) {
    case SpecialKey::Charge:
    case SpecialKey::Multiplicity:
      return geometry.has_charge_and_multiplicity;
    case SpecialKey::Geometry:
      return geometry.kind != GeometryKind::None;
    case SpecialKey::Files:
      return !geometry.xyz_files.empty();
    case SpecialKey::Atoms:
    case SpecialKey::Formula:
    case SpecialKey::AtomCount:
      return !geometry.atoms.empty();
    case SpecialKey::Keys:
      return !input.commands.empty();
  }
  return false;
}

bool has_entry(const QuillInput& input, const PostKey& key) {
  return !find_post_commands(input, key).empty();
}

std::string answer_of(const QuillInput& input, const CommandKey& key) {
  const HeaderCommand& command = *find_command(input, key);
  if (!key.parameter) return command_answer(command);
  const std::uint64_t index = find_parameter_index(command, *key.parameter).value();
  return command.parameters[index].value.value_or(no_value);
}

std::string joined_lines(const std::vector<std::string>& lines) {
  std::string text;
  for (const std::string& line : lines) text += (text.empty() ? "" : "\n") + line;
  return text;
}

std::string atom_lines(const std::vector<AtomRecord>& atoms) {
  std::string text;
  for (const AtomRecord& atom : atoms) {
    text += text.empty() ? "" : "\n";
    text += atom.symbol;
    for (const double number : {atom.x, atom.y, atom.z})
      text += " " + lossless::shortest_text(number);
  }
  return text;
}

std::string answer_of(const QuillInput& input, SpecialKey key) {
  const GeometryBlock& geometry = input.geometry;
  switch (key) {
    case SpecialKey::Charge:
      return std::to_string(geometry.charge);
    case SpecialKey::Multiplicity:
      return std::to_string(geometry.multiplicity);
    case SpecialKey::Geometry:
      return std::string(name_of(geometry.kind));
    case SpecialKey::Files:
      return joined_lines(geometry.xyz_files);
    case SpecialKey::Atoms:
      return atom_lines(geometry.atoms);
    case SpecialKey::Formula:
      return to_formula(hill_composition(geometry.atoms));
    case SpecialKey::AtomCount:
      return std::to_string(geometry.atoms.size());
    case SpecialKey::Keys:
      return joined_lines(list_keys(input));
  }
  return {};
}

/// Returns what a line says after its keyword.
std::string post_answer(const PostCommand& command) {
  if (command.kind == PostCommandKind::PostFile) return command.post_file;
  if (command.kind == PostCommandKind::Raw) return command.raw_text;
  std::string text = lossless::joined(command.atom_indices);
  if (command.scan_value) text += " " + lossless::shortest_text(*command.scan_value);
  if (command.scan_steps) text += " " + std::to_string(*command.scan_steps);
  return text;
}

std::string answer_of(const QuillInput& input, const PostKey& key) {
  std::vector<std::string> lines;
  for (const std::size_t index : find_post_commands(input, key))
    lines.push_back(post_answer(input.post_commands[index]));
  return joined_lines(lines);
}

std::uint64_t count_commands(const QuillInput& input, const std::string& name) {
  const std::string wanted = normalize_command_name(name);
  std::uint64_t count = 0;
  for (const HeaderCommand& command : input.commands) {
    if (normalize_command_name(command.name) == wanted) ++count;
  }
  return count;
}

std::vector<std::string> parameter_names(const HeaderCommand& command) {
  std::vector<std::string> names;
  for (const CommandParameter& parameter : command.parameters) names.push_back(parameter.name);
  return names;
}

std::string count_words(const MissingAnswer& missing) {
  return "there " + std::string(missing.count == 1 ? "is" : "are") + " only " +
         std::to_string(missing.count) + (missing.count == 1 ? " command '" : " commands '") +
         missing.name + "', and [N] counts from 0";
}

std::string number_words(std::uint64_t count, std::string_view noun) {
  return std::string("there ") + (count == 1 ? "is" : "are") + " only " + counted(count, noun) +
         ", and [N] counts from 0";
}

std::string reason_words(const MissingAnswer& missing) {
  switch (missing.kind) {
    case MissingAnswer::Kind::Section:
      break;
    case MissingAnswer::Kind::Position:
      return ": " + number_words(missing.count, "command");
    case MissingAnswer::Kind::PostNumber:
      return ": " + number_words(missing.count, missing.name);
    case MissingAnswer::Kind::Command:
      return ": no command '" + missing.name + "'" + did_you_mean(missing.similar);
    case MissingAnswer::Kind::Number:
      return ": " + count_words(missing);
    case MissingAnswer::Kind::Parameter:
      return ": the command has no parameter '" + missing.name + "'" +
             did_you_mean(missing.similar);
  }
  return {};
}

}  // namespace

const HeaderCommand* find_command(const QuillInput& input, const CommandKey& key) {
  if (!key.position) return input.find_command(key.command, key.occurrence.value_or(0));
  return *key.position < input.commands.size() ? &input.commands[*key.position] : nullptr;
}

std::vector<std::size_t> find_post_commands(const QuillInput& input, const PostKey& key) {
  std::vector<std::size_t> indexes;
  std::uint64_t number = 0;
  for (std::size_t i = 0; i < input.post_commands.size(); ++i) {
    if (input.post_commands[i].kind != key.kind) continue;
    if (!key.number || *key.number == number) indexes.push_back(i);
    ++number;
  }
  return indexes;
}

bool has_answer(const QuillInput& input, const Key& key) {
  return std::visit([&](const auto& any_key) { return has_entry(input, any_key); }, key);
}

std::optional<std::string> answer(const QuillInput& input, const Key& key) {
  if (!has_answer(input, key)) return std::nullopt;
  return std::visit([&](const auto& any_key) { return answer_of(input, any_key); }, key);
}

MissingAnswer find_missing(const QuillInput& input, std::string_view key_text, const Key& key) {
  MissingAnswer missing{std::string(key_text)};
  if (const auto* post_key = std::get_if<PostKey>(&key)) {
    const PostKey all{post_key->kind};
    missing.count = find_post_commands(input, all).size();
    missing.name = lossless::noun_of(post_key->kind);
    if (missing.count > 0) missing.kind = MissingAnswer::Kind::PostNumber;
    return missing;
  }
  const auto* command_key = std::get_if<CommandKey>(&key);
  if (command_key == nullptr) return missing;
  if (const HeaderCommand* command = find_command(input, *command_key)) {
    missing.kind = MissingAnswer::Kind::Parameter;
    missing.name = command_key->parameter.value();
    missing.similar = nearest_name(missing.name, parameter_names(*command));
    return missing;
  }
  if (command_key->position) {
    missing.count = input.commands.size();
    missing.kind = MissingAnswer::Kind::Position;
    return missing;
  }
  missing.name = command_key->command;
  missing.count = count_commands(input, missing.name);
  missing.kind = missing.count == 0 ? MissingAnswer::Kind::Command : MissingAnswer::Kind::Number;
  if (missing.count == 0) missing.similar = nearest_name(missing.name, input.command_names());
  return missing;
}

std::string words(const MissingAnswer& missing) {
  return "no match for '" + missing.key_text + "'" + reason_words(missing);
}

std::optional<std::string> find_similar_name(const QuillInput& input, const CommandKey& key) {
  const HeaderCommand* command = find_command(input, key);
  if (command == nullptr && key.position) return std::nullopt;
  if (command == nullptr) return nearest_name(key.command, input.command_names());
  if (key.parameter && !find_parameter_index(*command, *key.parameter))
    return nearest_name(*key.parameter, parameter_names(*command));
  return std::nullopt;
}

}  // namespace kelp::input::quill::tool
