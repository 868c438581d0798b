#include "quill-inp/keys/key.hpp"

#include <charconv>
#include <cstddef>
#include <utility>

#include "kelp/core/text.hpp"
#include "kelp/input/quill/document.hpp"
#include "model/parameter_name.hpp"
#include "model/post_line_shapes.hpp"
#include "quill-inp/process/trouble.hpp"
#include "quill-inp/text/suggestion.hpp"

namespace kelp::input::quill::tool {

namespace {

struct SpecialName {
  std::string_view name;
  SpecialKey key;
};

constexpr SpecialName special_names[] = {
    {"@charge", SpecialKey::Charge},     {"@multiplicity", SpecialKey::Multiplicity},
    {"@geometry", SpecialKey::Geometry}, {"@files", SpecialKey::Files},
    {"@atoms", SpecialKey::Atoms},       {"@formula", SpecialKey::Formula},
    {"@natoms", SpecialKey::AtomCount},  {"@keys", SpecialKey::Keys},
};

constexpr std::string_view commands_name = "@commands";

constexpr std::string_view escapable = ".[]=@\\";

[[noreturn]] void throw_bad_key(std::string_view text, const std::string& reason) {
  throw UsageError("bad key '" + std::string(text) + "': " + reason + "; " +
                   std::string(key_grammar()));
}

/// Walks over a key. In a name, a character after a backslash has no special meaning.
class KeyCursor {
 public:
  explicit KeyCursor(std::string_view text) : text_(text) {}

  bool at_end() const { return position_ == text_.size(); }

  void skip(std::size_t count) { position_ += count; }

  bool consume(char c) {
    if (at_end() || text_[position_] != c) return false;
    ++position_;
    return true;
  }

  /// Returns the characters up to the next one with a special meaning.
  std::string piece() {
    std::string piece;
    for (; !at_end() && !is_special(text_[position_]); ++position_) {
      if (text_[position_] == '\\') skip_backslash();
      piece += text_[position_];
    }
    return piece;
  }

  /// Returns the number up to the closing bracket.
  std::uint64_t occurrence() {
    const char* const begin = text_.data() + position_;
    const char* const end = text_.data() + text_.size();
    std::uint64_t number = 0;
    const auto [after, error] = std::from_chars(begin, end, number);
    if (error != std::errc() || after == end || *after != ']')
      throw_bad_key(text_, "a number and ']' must follow '['");
    position_ += static_cast<std::size_t>(after - begin) + 1;
    return number;
  }

 private:
  static bool is_special(char c) { return c == '.' || c == '[' || c == ']'; }

  void skip_backslash() {
    ++position_;
    if (at_end() || escapable.find(text_[position_]) == std::string_view::npos)
      throw_bad_key(text_, "a backslash goes before one of " + std::string(escapable));
  }

  std::string_view text_;
  std::size_t position_ = 0;
};

constexpr const char* too_many =
    "there is one '.', '[' or ']' too many, or a backslash is missing before it";

std::string parse_parameter(KeyCursor& cursor, std::string_view text) {
  std::string parameter = cursor.piece();
  if (core::text::trim(parameter).empty())
    throw_bad_key(text, "a parameter name is missing after '.'");
  return parameter;
}

/// key = name [ "[" number "]" ] [ "." name ]
CommandKey parse_command_key(std::string_view text) {
  KeyCursor cursor(text);
  CommandKey key;
  const std::string name = cursor.piece();
  if (core::text::trim(name).empty()) throw_bad_key(text, "the name is missing");
  key.command = stored_command_name(name);
  if (cursor.consume('[')) key.occurrence = cursor.occurrence();
  if (cursor.consume('.')) key.parameter = parse_parameter(cursor, text);
  if (!cursor.at_end()) throw_bad_key(text, too_many);
  return key;
}

[[noreturn]] void throw_unknown_key(std::string_view text) {
  throw UsageError("unknown key '" + std::string(text) + "'" +
                   suggestion(text, special_key_names()));
}

/// Returns the row of the lines that "@bonds", "@bonds[1]" or "@bond[1]" names, or a null pointer.
const PostLineShape* find_post_shape(std::string_view name, bool has_number) {
  for (const PostLineShape& shape : post_line_shapes) {
    if (shape.keys == name || (has_number && shape.key == name)) return &shape;
  }
  return nullptr;
}

/// key = "@" name / "@" name "[" number "]" / "@commands[" number "]" [ "." name ]
Key parse_special_key(std::string_view text) {
  for (const SpecialName& special : special_names) {
    if (special.name == text) return special.key;
  }
  const std::size_t bracket = text.find('[');
  const bool has_number = bracket != std::string_view::npos;
  const std::string_view name = text.substr(0, bracket);
  const PostLineShape* shape = find_post_shape(name.substr(1), has_number);
  if (shape == nullptr && name != commands_name) throw_unknown_key(text);
  if (shape != nullptr && !has_number) return PostKey{shape->kind};
  if (!has_number) throw_bad_key(text, "a number in brackets must follow '@commands'");
  KeyCursor cursor(text);
  cursor.skip(bracket + 1);
  const std::uint64_t number = cursor.occurrence();
  CommandKey command;
  if (shape == nullptr && cursor.consume('.')) command.parameter = parse_parameter(cursor, text);
  if (!cursor.at_end()) throw_bad_key(text, too_many);
  if (shape != nullptr) return PostKey{shape->kind, number};
  command.position = number;
  return command;
}

std::size_t find_equals_sign(std::string_view text) {
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] == '\\')
      ++i;
    else if (text[i] == '=')
      return i;
  }
  return std::string_view::npos;
}

void require_settable(const Setting& setting) {
  const auto* special = std::get_if<SpecialKey>(&setting.key);
  if (special != nullptr && *special != SpecialKey::Charge &&
      *special != SpecialKey::Multiplicity) {
    throw UsageError("'" + setting.key_text +
                     "' cannot be set to a value; use --atoms, --xyz or --trajectory");
  }
  if (std::holds_alternative<PostKey>(setting.key)) {
    throw UsageError("'" + setting.key_text +
                     "' cannot be set; 'unset' removes such lines, and 'add' adds them");
  }
}

}  // namespace

std::string stored_command_name(std::string_view typed) {
  const std::string trimmed = core::text::trim(typed);
  const bool has_hash = !trimmed.empty() && trimmed.front() == '#';
  return has_hash ? core::text::trim(std::string_view(trimmed).substr(1)) : trimmed;
}

bool is_nameless(std::string_view command) { return normalize_command_name(command).empty(); }

Key parse_key(std::string_view text) {
  if (!text.empty() && text.front() == '@') return parse_special_key(text);
  return parse_command_key(text);
}

bool has_value(std::string_view setting) {
  return find_equals_sign(setting) != std::string_view::npos;
}

Setting parse_setting(std::string_view text) {
  const std::size_t equals = find_equals_sign(text);
  Setting setting;
  setting.key_text = std::string(text.substr(0, equals));
  setting.key = parse_key(setting.key_text);
  const auto* key = std::get_if<CommandKey>(&setting.key);
  if (key != nullptr && !key->position && is_nameless(key->command))
    throw_bad_key(setting.key_text, "the name is missing");
  if (equals != std::string_view::npos) setting.value = std::string(text.substr(equals + 1));
  require_settable(setting);
  return setting;
}

std::string compared_parameter_name(std::string_view name) {
  return normalize_parameter_name(name);
}

std::vector<std::string> special_key_names() {
  std::vector<std::string> names;
  for (const SpecialName& special : special_names) names.emplace_back(special.name);
  for (const PostLineShape& shape : post_line_shapes)
    names.push_back("@" + std::string(shape.keys));
  names.emplace_back(commands_name);
  return names;
}

std::string escaped_name(std::string_view name) {
  std::string text;
  for (const char c : name) {
    if (escapable.find(c) != std::string_view::npos) text += '\\';
    text += c;
  }
  return text;
}

std::string_view key_grammar() {
  return "a key is COMMAND, COMMAND.PARAMETER, COMMAND[N] or COMMAND[N].PARAMETER, where N counts "
         "from 0, or begins with '@', such as @charge, @bonds, @bond[N] or @commands[N]";
}

}  // namespace kelp::input::quill::tool
