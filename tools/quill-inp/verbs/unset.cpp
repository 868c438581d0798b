#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "edit_support/tracked_document.hpp"
#include "kelp/core/text.hpp"
#include "quill-inp/command_line/arguments.hpp"
#include "quill-inp/editing/edit_file.hpp"
#include "quill-inp/keys/answer.hpp"
#include "quill-inp/process/trouble.hpp"
#include "quill-inp/verbs/verb.hpp"

namespace kelp::input::quill::tool {

namespace {

constexpr const char* example =
    "Example:\n"
    "  quill-inp unset -i water.qin opt.tight device\n"
    "\n"
    "KEY is as for 'get'. COMMAND removes every command of the name, COMMAND[N] one of them,\n"
    "COMMAND.PARAMETER a parameter of the first one, given twice also the second parameter of the\n"
    "name; @charge or @multiplicity the line that has both. When a key has no match, nothing is\n"
    "removed and the exit code is 1.";

/// A key in the form in which names are compared.
struct Removal {
  std::string command = {};
  std::optional<std::uint64_t> occurrence = std::nullopt;
  std::optional<std::string> parameter = std::nullopt;
};

/// Numbers of commands are those of the file, so that one given twice is the same command. A
/// parameter given twice is another one of the name.
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

edit_support::Edit to_edit(const Removal& removal) {
  if (removal.parameter) {
    return edit_support::RemoveParameter{removal.command, *removal.parameter,
                                         removal.occurrence.value_or(0)};
  }
  return edit_support::RemoveCommand{removal.command, removal.occurrence};
}

/// Numbers of commands mean those of the file as it is. So parameters go first, which moves no
/// command, and then commands from the last to the first; a whole name goes at the very end.
bool goes_before(const Removal& left, const Removal& right) {
  const auto rank = [](const Removal& removal) {
    return removal.parameter ? 0 : (removal.occurrence ? 1 : 2);
  };
  if (rank(left) != rank(right)) return rank(left) < rank(right);
  return left.occurrence > right.occurrence;
}

/// Every key as it was typed, and the removals they ask for.
struct Request {
  std::vector<std::string> texts = {};
  std::vector<Key> keys = {};
  std::vector<Removal> removals = {};
  bool clears_charge_and_multiplicity = false;
};

bool stands_on_charge_line(SpecialKey key) {
  return key == SpecialKey::Charge || key == SpecialKey::Multiplicity;
}

Request parse_request(const std::vector<std::string>& texts) {
  Request request;
  for (const std::string& text : texts) {
    const Key key = parse_key(text);
    request.texts.push_back(text);
    request.keys.push_back(key);
    if (const auto* command_key = std::get_if<CommandKey>(&key)) {
      const Removal removal = to_removal(*command_key);
      auto& all = request.removals;
      const auto is_same = [&](const Removal& other) { return asks_for_the_same(removal, other); };
      if (std::none_of(all.begin(), all.end(), is_same)) all.push_back(removal);
    } else if (stands_on_charge_line(std::get<SpecialKey>(key))) {
      request.clears_charge_and_multiplicity = true;
    } else {
      throw UsageError("'" + text + "' cannot be unset; 'set' has --atoms, --xyz and --trajectory");
    }
  }
  std::stable_sort(request.removals.begin(), request.removals.end(), goes_before);
  return request;
}

/// Returns the index of a command that there is.
std::size_t index_of(const QuillInput& input, const Removal& removal) {
  const HeaderCommand* command =
      input.find_command(removal.command, removal.occurrence.value_or(0));
  return static_cast<std::size_t>(command - input.commands.data());
}

/// Notes the parameters that stay and have the name of one that goes: what was to have no effect
/// any more may still have it.
std::vector<PlanNote> note_remaining_parameters(const Request& request, const QuillInput& input,
                                                const std::vector<edit_support::Edit>& edits) {
  std::set<std::pair<std::size_t, std::string>> asked;
  for (const Removal& removal : request.removals) {
    if (removal.parameter) asked.emplace(index_of(input, removal), *removal.parameter);
  }
  edit_support::TrackedDocument after(input);
  for (const edit_support::Edit& edit : edits) after.apply(edit);
  std::vector<PlanNote> notes;
  for (std::size_t i = 0; i < after.origins().size(); ++i) {
    const HeaderCommand& command = after.document().commands[i];
    for (const auto& [index, name] : asked) {
      const auto remaining = find_parameter_index(command, name);
      if (after.origins()[i] == index && remaining) {
        notes.push_back(
            {"another parameter '" + command.parameters[*remaining].name + "' remains", index});
      }
    }
  }
  return notes;
}

EditPlan make_plan(const Request& request, const QuillInput& input) {
  EditPlan plan;
  for (std::size_t i = 0; i < request.keys.size(); ++i) {
    if (!answer(input, request.keys[i]))
      plan.missing.push_back(explain_no_answer(input, request.texts[i], request.keys[i]));
  }
  for (const Removal& removal : request.removals) plan.edits.push_back(to_edit(removal));
  if (request.clears_charge_and_multiplicity)
    plan.edits.emplace_back(edit_support::ClearChargeAndMultiplicity{});
  if (plan.missing.empty()) plan.notes = note_remaining_parameters(request, input, plan.edits);
  return plan;
}

}  // namespace

Verb add_unset(CLI::App& program) {
  CLI::App* app = add_verb(program, "unset", "Remove commands and parameters", example);
  add_argument(*app, "FILE", "The input");
  add_arguments(*app, "KEY", "What to remove, all or nothing");
  add_delivery_options(*app, false);
  add_loss_options(*app);
  add_common_options(*app);
  return {app, [=](Session& session) {
            const std::string argument = *value_of(*app, "FILE");
            const Request request = parse_request(values_of(*app, "KEY"));
            const Delivery delivery = read_delivery(*app);
            const LossPolicy policy = read_loss_policy(*app);
            return for_file(session, argument, [&] {
              const auto plan = [&](const QuillInput& input) { return make_plan(request, input); };
              return edit_file(session, argument, plan, delivery, policy);
            });
          }};
}

}  // namespace kelp::input::quill::tool
