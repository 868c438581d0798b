#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "kelp/core/text.hpp"
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
    "or @multiplicity removes the line with both numbers. When a key has no match, nothing is\n"
    "removed and the exit code is 1.";

constexpr const char* help_of_keys = "What to remove; either all of it is removed or nothing";

using lossless::TrackedDocument;

/// A key in the form in which names are compared.
struct Removal {
  std::string command = {};
  std::optional<std::uint64_t> occurrence = std::nullopt;
  std::optional<std::string> parameter = std::nullopt;
};

/// Numbers of commands count those in the file, so the same number twice is the same command. The
/// same parameter twice is another parameter with that name.
bool asks_for_the_same(const Removal& left, const Removal& right) {
  return !left.parameter && !right.parameter && left.command == right.command &&
         left.occurrence == right.occurrence;
}

Removal to_removal(const CommandKey& key) {
  Removal removal{normalize_command_name(key.command), key.occurrence, std::nullopt};
  if (key.parameter) {
    removal.occurrence = key.occurrence.value_or(0);
    removal.parameter = core::text::to_lower_copy(core::text::trim(*key.parameter));
  }
  return removal;
}

void remove(const Removal& removal, TrackedDocument& document) {
  if (removal.parameter) {
    document.remove_parameter(removal.command, *removal.parameter, removal.occurrence.value_or(0));
  } else {
    document.remove_command(removal.command, removal.occurrence);
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

/// Every key, and the removals that they ask for.
struct Request {
  std::vector<TypedKey> keys = {};
  std::vector<Removal> removals = {};
  bool clears_charge_and_multiplicity = false;
};

bool is_on_charge_line(SpecialKey key) {
  return key == SpecialKey::Charge || key == SpecialKey::Multiplicity;
}

Request parse_request(const std::vector<std::string>& texts) {
  Request request;
  for (const std::string& text : texts) {
    const Key key = parse_key(text);
    request.keys.push_back({text, key});
    if (const auto* command_key = std::get_if<CommandKey>(&key)) {
      const Removal removal = to_removal(*command_key);
      auto& all = request.removals;
      const auto is_same = [&](const Removal& other) { return asks_for_the_same(removal, other); };
      if (std::none_of(all.begin(), all.end(), is_same)) all.push_back(removal);
    } else if (is_on_charge_line(std::get<SpecialKey>(key))) {
      request.clears_charge_and_multiplicity = true;
    } else {
      throw UsageError("'" + text + "' cannot be unset; 'set' has --atoms, --xyz and --trajectory");
    }
  }
  std::stable_sort(request.removals.begin(), request.removals.end(), goes_before);
  return request;
}

/// Returns the index of a command that exists.
std::size_t index_of(const QuillInput& input, const Removal& removal) {
  const HeaderCommand* command =
      input.find_command(removal.command, removal.occurrence.value_or(0));
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

/// Notes the parameters that are still there and have the name of a removed one: what the user
/// wanted to end may still have an effect.
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

EditReport remove_keys(const Request& request, TrackedDocument& document) {
  EditReport report;
  const QuillInput& input = document.document();
  for (const TypedKey& typed : request.keys) {
    if (!answer(input, typed.key))
      report.missing.push_back(find_missing(input, typed.text, typed.key));
  }
  if (!report.missing.empty()) return report;
  const AskedParameters asked = list_asked_parameters(request, input);
  for (const Removal& removal : request.removals) remove(removal, document);
  if (request.clears_charge_and_multiplicity) document.clear_charge_and_multiplicity();
  report.notes = note_parameters_left(asked, document);
  return report;
}

ExitCode unset(Session& session, const CLI::App& app) {
  const FilesAndKeys given = read_files_and_keys(app);
  const Request request = parse_request(given.keys);
  const auto edit = [&](TrackedDocument& document) { return remove_keys(request, document); };
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
