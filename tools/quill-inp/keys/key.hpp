#ifndef KELP_INPUT_QUILL_TOOL_KEYS_KEY_HPP
#define KELP_INPUT_QUILL_TOOL_KEYS_KEY_HPP

// The keys that name parts of an input on the command line.
//
//   parse_key("opt");             // the first command "opt"
//   parse_key("opt[1].maxiter");  // a parameter of the second one
//   parse_key("@charge");         // something that is not a header command
//   parse_key("@bond[1]");        // the second bond constraint
//   parse_key("@commands[2]");    // the third command, whatever its name
//   parse_key("basis\\.set");     // the command "basis.set"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "kelp/input/quill/document.hpp"

namespace kelp::input::quill::tool {

/// Returns the name that is stored for a command name that was typed: without blanks around it, and
/// without the "#" that may be before it as in a file.
std::string stored_command_name(std::string_view typed);

/// Returns whether a command with this stored name would have no name in an input.
bool is_nameless(std::string_view command);

/// What an input has besides header commands.
enum class SpecialKey {
  Charge,
  Multiplicity,
  Geometry,
  Files,
  Atoms,
  Formula,
  AtomCount,
  Keys,
};

/// A command, by its name and its number among the commands with that name, counted from 0; or a
/// parameter of it. Names are as InputEditor takes them, so `command` has no "#" before it. With a
/// `position`, it is the command with this number among all, counted from 0, and name and
/// occurrence are empty.
struct CommandKey {
  std::string command = {};
  std::optional<std::uint64_t> occurrence = std::nullopt;
  std::optional<std::string> parameter = std::nullopt;
  std::optional<std::uint64_t> position = std::nullopt;
};

/// All post-processing lines of a kind, or the one with this number among them, counted from 0.
struct PostKey {
  PostCommandKind kind = PostCommandKind::Raw;
  std::optional<std::uint64_t> number = std::nullopt;
};

using Key = std::variant<SpecialKey, CommandKey, PostKey>;

/// Reads a key. Throws UsageError, with the grammar, for a text that is not a key, and with the
/// nearest name for an unknown name after "@".
Key parse_key(std::string_view text);

/// A key and what it is to be set to: "opt.maxiter=50", or "opt.tight" without a value.
struct Setting {
  std::string key_text = {};
  Key key = CommandKey{};
  std::optional<std::string> value = std::nullopt;
  /// The command gets this name and keeps everything else; the value is not used.
  std::optional<std::string> new_name = std::nullopt;
};

/// Returns whether a setting has a value: an "=" without a backslash before it.
bool has_value(std::string_view setting);

/// Reads a setting. The first "=" without a backslash before it ends the key; the value is all text
/// after it, unchanged. Throws as parse_key() does, for a key that only has answers, such as
/// "@formula" and "@bonds", and for a command without a name: an input may contain one, but nobody
/// wants to create one.
Setting parse_setting(std::string_view text);

/// Returns the form of a parameter's name that is the same for all spellings that lead to the same
/// parameter.
std::string compared_parameter_name(std::string_view name);

/// Returns how the keys that begin with "@" are written, "@charge" and so on, without numbers.
std::vector<std::string> special_key_names();

/// Returns how the name of a command or parameter is written in a key, with a backslash before the
/// characters that have a special meaning.
std::string escaped_name(std::string_view name);

/// What a key looks like, in one sentence.
std::string_view key_grammar();

}  // namespace kelp::input::quill::tool

#endif  // KELP_INPUT_QUILL_TOOL_KEYS_KEY_HPP
