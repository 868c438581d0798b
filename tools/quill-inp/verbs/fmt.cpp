#include <string>
#include <utility>
#include <vector>

#include "kelp/input/quill/lossless/proof.hpp"
#include "kelp/input/quill/lossless/quoting.hpp"
#include "quill-inp/command_line/arguments.hpp"
#include "quill-inp/command_line/common_options.hpp"
#include "quill-inp/command_line/file_options.hpp"
#include "quill-inp/editing/delivery.hpp"
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
  const ReadInput input = read_for_delivery(session, argument, delivery);
  if (!accept_as_input(session, input, policy)) return ExitCode::Trouble;
  const QuillInput& document = input.read.result.input;
  report_warnings(session.reporter(), input.name, input.read.result);

  lossless::QuotedDocument quoted = lossless::quote(document);
  const std::string text = quoted.document.to_string();
  const lossless::Proof proof = lossless::prove(text, document, policy.max_change);
  note_number_changes(session, input.name, proof.comparison.number_changes);
  const Losses losses{
      {}, list_line_losses(input.read), std::move(quoted.problems), proof, document};
  if (!accept_losses(session, input.name, losses, policy)) return ExitCode::Trouble;
  if (!accept_findings(session, argument, text, policy)) return ExitCode::Trouble;
  const ExitCode code = deliver(session, input, text, delivery);
  if (session.has_noted_change()) session.reporter().note({input.name}, "changed");
  return code;
}

ExitCode fmt(Session& session, const CLI::App& app) {
  const Delivery delivery = read_delivery(app, CheckOption::Present);
  const LossPolicy policy = read_loss_policy(app);
  BatchOptions options = read_batch_options(app);
  options.tells_counts = delivery.in_place;
  const ChosenFiles chosen = choose_files(session, read_file_choice(app, values_of(app, files)));
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
