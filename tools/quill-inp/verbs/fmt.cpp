#include <optional>
#include <string>
#include <vector>

#include "quill-inp/command_line/arguments.hpp"
#include "quill-inp/command_line/common_options.hpp"
#include "quill-inp/command_line/file_options.hpp"
#include "quill-inp/editing/delivery.hpp"
#include "quill-inp/editing/format_input.hpp"
#include "quill-inp/editing/loss_policy.hpp"
#include "quill-inp/editing/strictness.hpp"
#include "quill-inp/session/input_source.hpp"
#include "quill-inp/verbs/verb.hpp"

namespace kelp::input::quill::tool {

namespace {

constexpr const char* example =
    "Example:\n"
    "  quill-inp fmt --diff water.qin\n"
    "  quill-inp fmt -i *.qin";

constexpr Option files{"FILE", "", "The inputs"};

ExitCode format(Session& session, const std::string& argument, const Delivery& delivery,
                const LossPolicy& policy) {
  ReadInput input = read_for_delivery(session, argument, delivery);
  const OldText old_text = needs_old_text(delivery) ? OldText::Kept : OldText::Forgotten;
  std::optional<std::string> text = make_canonical_text(session, input, policy, old_text);
  if (!text) return ExitCode::Trouble;
  if (!accept_findings(session, argument, *text, policy)) return ExitCode::Trouble;
  const ExitCode code = deliver(session, input, *text, delivery);
  if (delivery.in_place && session.has_noted_change())
    session.reporter().note({input.name}, "changed");
  return code;
}

ExitCode fmt(Session& session, const CLI::App& app) {
  const Delivery delivery = read_delivery(app, CheckOption::Present);
  const LossPolicy policy = read_loss_policy(app);
  BatchOptions options = read_batch_options(app);
  if (delivery.in_place) options.counted = "changed";
  FileChoice choice = read_file_choice(app, values_of(app, files));
  choice.takes_each_once = delivery.in_place;
  require_one_text(delivery, choice);
  const ChosenFiles chosen = choose_files(session, choice);
  return for_each_file(session, chosen, options, [&](Session& one, const std::string& argument) {
    return format(one, argument, delivery, policy);
  });
}

}  // namespace

Verb add_fmt(CLI::App& program) {
  CLI::App* app = add_verb(program, "fmt", "Format inputs in the canonical layout", example);
  add_files(*app, files);
  add_delivery_options(*app, CheckOption::Present);
  add_loss_options(*app);
  add_file_options(*app);
  add_common_options(*app);
  return {app, fmt};
}

}  // namespace kelp::input::quill::tool
