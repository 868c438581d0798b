#include "tools/properties/keys.hpp"

#include <cstddef>
#include <optional>
#include <string>
#include <variant>

#include "kelp/input/quill/writer.hpp"
#include "model/post_line_shapes.hpp"
#include "properties/obvious_reader.hpp"
#include "properties/obvious_text.hpp"
#include "properties/violation.hpp"
#include "quill-inp/command_line/post_options.hpp"
#include "quill-inp/keys/key.hpp"
#include "quill-inp/process/trouble.hpp"

namespace kelp::input::quill::tool {

namespace {

constexpr std::string_view escapable = ".[]=@\\";

std::string escaped(std::string_view name) {
  std::string text;
  for (const char c : name) {
    if (escapable.find(c) != std::string_view::npos) text += '\\';
    text += c;
  }
  return text;
}

/// A key in the one spelling that suits every name.
std::string spelled(const Key& key) {
  if (const auto* special = std::get_if<SpecialKey>(&key))
    return special_key_names().at(static_cast<std::size_t>(*special));
  if (const auto* post = std::get_if<PostKey>(&key)) {
    const std::string name = "@" + std::string(find_post_line_shape(post->kind)->keys);
    return post->number ? name + "[" + std::to_string(*post->number) + "]" : name;
  }
  const auto& command = std::get<CommandKey>(key);
  std::string text = command.position ? "@commands[" + std::to_string(*command.position) + "]"
                                      : "#" + escaped(command.command);
  if (command.occurrence) text += "[" + std::to_string(*command.occurrence) + "]";
  if (command.parameter) text += "." + escaped(*command.parameter);
  return text;
}

bool is_same(const Key& left, const Key& right) {
  if (left.index() != right.index()) return false;
  if (const auto* special = std::get_if<SpecialKey>(&left))
    return *special == std::get<SpecialKey>(right);
  if (const auto* post = std::get_if<PostKey>(&left)) {
    const auto& other = std::get<PostKey>(right);
    return post->kind == other.kind && post->number == other.number;
  }
  const auto& one = std::get<CommandKey>(left);
  const auto& other = std::get<CommandKey>(right);
  return one.command == other.command && one.occurrence == other.occurrence &&
         one.parameter == other.parameter && one.position == other.position;
}

std::optional<Setting> read_setting(std::string_view text) {
  try {
    return parse_setting(text);
  } catch (const UsageError&) {
    return std::nullopt;
  }
}

void check_spelling(const Key& key, std::string_view text) {
  const std::string spelling = spelled(key);
  require(is_same(parse_key(spelling), key), "a key can be spelled", text);
  const auto* command = std::get_if<CommandKey>(&key);
  require(command == nullptr || obvious::trim(command->command) == command->command,
          "the name of a command has no blanks around it", text);
  require(command == nullptr || !command->parameter || !obvious::trim(*command->parameter).empty(),
          "the name of a parameter is not blank", text);
}

std::size_t least_atoms(PostCommandKind kind) {
  return kind == PostCommandKind::Scan ? 2 : static_cast<std::size_t>(kind) + 1;
}

void check_post_argument(const std::string& option, PostCommandKind kind, const std::string& text) {
  try {
    const PostCommand command = parse_post_argument(option, text);
    const std::size_t most = kind == PostCommandKind::Scan ? 4 : least_atoms(kind);
    require(command.kind == kind && least_atoms(kind) <= command.atom_indices.size() &&
                command.atom_indices.size() <= most,
            "an option gives the line that it is named after", text);
    require(obvious::post_line(to_string(command)).has_value(), "the line can be read", text);
  } catch (const UsageError& error) {
    require(std::string(error.what()).find(option) != std::string::npos,
            "a refusal names the option", text);
  }
}

}  // namespace

void check_key(std::string_view text) {
  try {
    check_spelling(parse_key(text), text);
  } catch (const UsageError& error) {
    require(std::string_view(error.what()).find(text) != std::string_view::npos,
            "a refusal shows the key", text);
  }
  const std::optional<Setting> setting = read_setting(text);
  if (!setting) return;
  const std::string whole = setting->key_text + (setting->value ? "=" + *setting->value : "");
  require(whole == text, "a setting is its key and its value", text);
  require(has_value(text) == setting->value.has_value(), "a setting has the value that it shows",
          text);
  const auto* command = std::get_if<CommandKey>(&setting->key);
  require(command == nullptr || command->position || !is_nameless(command->command),
          "a setting has a name", text);
  require(is_same(setting->key, parse_key(setting->key_text)), "a setting has the key of its text",
          text);
}

void check_post_arguments(std::string_view text) {
  const std::string argument(text);
  check_post_argument("--atom", PostCommandKind::AtomConstraint, argument);
  check_post_argument("--bond", PostCommandKind::BondConstraint, argument);
  check_post_argument("--angle", PostCommandKind::AngleConstraint, argument);
  check_post_argument("--dihedral", PostCommandKind::DihedralConstraint, argument);
  check_post_argument("--scan", PostCommandKind::Scan, argument);
}

}  // namespace kelp::input::quill::tool
