#include <algorithm>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "kelp/core/text.hpp"
#include "quill-inp/answer.hpp"
#include "quill-inp/arguments.hpp"
#include "quill-inp/edit_file.hpp"
#include "quill-inp/trouble.hpp"
#include "quill-inp/verb.hpp"

namespace kelp::input::quill::tool {

namespace {

constexpr const char* example =
    "Example:\n"
    "  quill-inp unset -i water.qin opt.tight device\n"
    "\n"
    "KEY is as for 'get'. COMMAND removes every command of the name, COMMAND[N] one of them,\n"
    "COMMAND.PARAMETER a parameter of the first one; @charge or @multiplicity the line that\n"
    "has both. When a key has no match, nothing is removed and the exit code is 1.";

/// A key in the form in which names are compared, so that one that is given twice is found.
struct Removal {
  std::string command = {};
  std::optional<std::uint64_t> occurrence = std::nullopt;
  std::optional<std::string> parameter = std::nullopt;

  bool operator==(const Removal& other) const {
    return command == other.command && occurrence == other.occurrence &&
           parameter == other.parameter;
  }
};

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
      if (std::find(all.begin(), all.end(), removal) == all.end()) all.push_back(removal);
    } else if (stands_on_charge_line(std::get<SpecialKey>(key))) {
      request.clears_charge_and_multiplicity = true;
    } else {
      throw UsageError("'" + text + "' cannot be unset; 'set' has --atoms, --xyz and --trajectory");
    }
  }
  std::stable_sort(request.removals.begin(), request.removals.end(), goes_before);
  return request;
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
