#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "kelp/input/quill/lossless/tracked_document.hpp"
#include "quill-inp/command_line/arguments.hpp"
#include "quill-inp/command_line/common_options.hpp"
#include "quill-inp/command_line/key_options.hpp"
#include "quill-inp/editing/edit_file.hpp"
#include "quill-inp/keys/answer.hpp"
#include "quill-inp/process/trouble.hpp"
#include "quill-inp/verbs/verb.hpp"

namespace kelp::input::quill::tool {

namespace {

constexpr const char* example =
    "Example:\n"
    "  quill-inp unset -i water.qin opt.tight device\n"
    "  quill-inp unset -i -k device *.qin\n"
    "\n"
    "KEY has the same form as for 'get'. COMMAND removes every command with that name,\n"
    "COMMAND[N] only one of them, COMMAND.PARAMETER a parameter of the first one. Where a\n"
    "command has two parameters with the same name, give the key twice to remove both. @charge\n"
    "or @multiplicity removes the line with both numbers, @bonds every bond constraint and\n"
    "@bond[N] one of them. When a key has no match, nothing is removed and the exit code is 1.";

constexpr const char* help_of_keys = "What to remove; either all of it is removed or nothing";

using lossless::TrackedDocument;

/// A key in the form in which names are compared, and the name of the command as the input has it.
struct Removal {
  std::string command = {};
  std::string name = {};
  std::optional<std::uint64_t> occurrence = std::nullopt;
  std::optional<std::string> parameter = std::nullopt;
};

/// Numbers of commands count those in the file, so the same number twice is the same command. The
/// same parameter twice is another parameter with that name.
bool asks_for_the_same(const Removal& left, const Removal& right) {
  return !left.parameter && !right.parameter && left.command == right.command &&
         left.occurrence == right.occurrence;
}

/// Returns how many commands before this one have its name.
std::uint64_t count_same_before(const QuillInput& input, const HeaderCommand& command) {
  const std::string name = normalize_command_name(command.name);
  const auto has_name = [&](const HeaderCommand& other) {
    return normalize_command_name(other.name) == name;
  };
  const HeaderCommand* const first = input.commands.data();
  return static_cast<std::uint64_t>(std::count_if(first, &command, has_name));
}

/// Returns the removal for a key that has a match.
Removal to_removal(const QuillInput& input, const CommandKey& key) {
  const HeaderCommand* command = find_command(input, key);
  Removal removal{normalize_command_name(command->name), command->name, key.occurrence};
  if (key.position) removal.occurrence = count_same_before(input, *command);
  if (key.parameter) {
    removal.occurrence = removal.occurrence.value_or(0);
    removal.parameter = compared_parameter_name(*key.parameter);
  }
  return removal;
}

void remove(const Removal& removal, TrackedDocument& document) {
  if (removal.parameter) {
    document.remove_parameter(removal.name, *removal.parameter, removal.occurrence.value_or(0));
  } else {
    document.remove_command(removal.name, removal.occurrence);
  }
}

/// Numbers of commands count those in the unchanged file. So parameters are removed first, which
/// moves no command, then single commands from the last to the first, and all commands with a name
/// at the end.
bool goes_before(const Removal& left, const Removal& right) {
  const auto rank = [](const Removal& removal) {
    return removal.parameter ? 0 : (removal.occurrence ? 1 : 2);
  };
  if (rank(left) != rank(right)) return rank(left) < rank(right);
  return left.occurrence > right.occurrence;
}

/// A key as it was typed and as it was read.
struct TypedKey {
  std::string text = {};
  Key key = {};
};

/// What keys ask for in an input that has a match for each of them.
struct Request {
  std::vector<Removal> removals = {};
  std::vector<bool> post_commands = {};  // whether to remove each of them; empty for none
  bool clears_charge_and_multiplicity = false;
};

bool is_on_charge_line(SpecialKey key) {
  return key == SpecialKey::Charge || key == SpecialKey::Multiplicity;
}

std::vector<TypedKey> parse_keys(const std::vector<std::string>& texts) {
  std::vector<TypedKey> keys;
  for (const std::string& text : texts) {
    keys.push_back({text, parse_key(text)});
    const auto* special = std::get_if<SpecialKey>(&keys.back().key);
    if (special != nullptr && !is_on_charge_line(*special))
      throw UsageError("'" + text + "' cannot be unset; 'set' has --atoms, --xyz and --trajectory");
  }
  return keys;
}

void add_removal(Removal&& removal, std::vector<Removal>& all) {
  const auto is_same = [&](const Removal& other) { return asks_for_the_same(removal, other); };
  if (std::none_of(all.begin(), all.end(), is_same)) all.push_back(std::move(removal));
}

Request make_request(const std::vector<TypedKey>& keys, const QuillInput& input) {
  Request request;
  for (const TypedKey& typed : keys) {
    if (const auto* command = std::get_if<CommandKey>(&typed.key)) {
      add_removal(to_removal(input, *command), request.removals);
    } else if (const auto* post = std::get_if<PostKey>(&typed.key)) {
      request.post_commands.resize(input.post_commands.size());
      for (const std::size_t index : find_post_commands(input, *post))
        request.post_commands[index] = true;
    } else {
      request.clears_charge_and_multiplicity = true;
    }
  }
  std::stable_sort(request.removals.begin(), request.removals.end(), goes_before);
  return request;
}

/// Returns the index of a command that exists.
std::size_t index_of(const QuillInput& input, const Removal& removal) {
  const HeaderCommand* command = input.find_command(removal.name, removal.occurrence.value_or(0));
  return static_cast<std::size_t>(command - input.commands.data());
}

/// A parameter that is asked for: the command by its index, and the name.
using AskedParameters = std::set<std::pair<std::size_t, std::string>>;

AskedParameters list_asked_parameters(const Request& request, const QuillInput& input) {
  AskedParameters asked;
  for (const Removal& removal : request.removals) {
    if (removal.parameter) asked.emplace(index_of(input, removal), *removal.parameter);
  }
  return asked;
}

/// Notes the remaining parameters that have the name of a removed one: what the user wanted to
/// remove may still have an effect.
std::vector<EditNote> note_parameters_left(const AskedParameters& asked,
                                           const TrackedDocument& document) {
  std::vector<EditNote> notes;
  const auto origins = document.origins();
  for (std::size_t i = 0; i < origins.size(); ++i) {
    const HeaderCommand& command = document.document().commands[i];
    for (const auto& [index, name] : asked) {
      const auto left = find_parameter_index(command, name);
      if (origins[i] == index && left) {
        notes.push_back(
            {EditNote::Kind::OtherParameterLeft, command.parameters[*left].name, {}, index});
      }
    }
  }
  return notes;
}

EditReport remove_keys(const std::vector<TypedKey>& keys, TrackedDocument& document) {
  EditReport report;
  const QuillInput& input = document.document();
  for (const TypedKey& typed : keys) {
    if (!has_answer(input, typed.key))
      report.missing.push_back(find_missing(input, typed.text, typed.key));
  }
  if (!report.missing.empty()) return report;
  const Request request = make_request(keys, input);
  const AskedParameters asked = list_asked_parameters(request, input);
  for (const Removal& removal : request.removals) remove(removal, document);
  if (!request.post_commands.empty()) document.remove_post_commands(request.post_commands);
  if (request.clears_charge_and_multiplicity) document.clear_charge_and_multiplicity();
  report.notes = note_parameters_left(asked, document);
  return report;
}

ExitCode unset(Session& session, const CLI::App& app) {
  const FilesAndKeys given = read_files_and_keys(app);
  const std::vector<TypedKey> typed = parse_keys(given.keys);
  const auto edit = [&](TrackedDocument& document) { return remove_keys(typed, document); };
  return edit_files(session, read_edit_options(app, given.files), edit);
}

}  // namespace

Verb add_unset(CLI::App& program) {
  CLI::App* app = add_verb(program, "unset", "Remove commands and parameters", example);
  add_key_options(*app, help_of_keys);
  add_edit_options(*app);
  add_common_options(*app);
  return {app, unset};
}

}  // namespace kelp::input::quill::tool
