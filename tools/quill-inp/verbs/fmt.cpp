#include <cstddef>
#include <string>
#include <utility>
#include <vector>

#include "edit_support/line_account.hpp"
#include "edit_support/proof.hpp"
#include "edit_support/value_spelling.hpp"
#include "kelp/core/text.hpp"
#include "quill-inp/command_line/arguments.hpp"
#include "quill-inp/editing/delivery.hpp"
#include "quill-inp/editing/header_text_loss.hpp"
#include "quill-inp/editing/loss_policy.hpp"
#include "quill-inp/session/input_source.hpp"
#include "quill-inp/verbs/verb.hpp"

namespace kelp::input::quill::tool {

namespace {

constexpr const char* example =
    "Example:\n"
    "  quill-inp fmt --diff water.qin\n"
    "  quill-inp fmt -i *.qin";

using edit_support::AccountedLine;
using edit_support::LineRole;

Loss loss_of(const AccountedLine& line, std::string_view text, const char* what) {
  return Loss("line " + std::to_string(line.number) + what + ": '" +
                  core::text::trim(line.content(text)) + "'",
              line.number);
}

/// Returns what the lines of the text say and the document does not hold: the canonical text is
/// made of the document alone.
std::vector<Loss> list_left_out(std::string_view text, const ParseResult& result) {
  std::vector<Loss> left_out;
  for (const AccountedLine& line : edit_support::account_for_lines(text, result)) {
    const bool has_no_path = line.role == LineRole::XyzReference && !line.index;
    if (line.role == LineRole::Dropped || has_no_path)
      left_out.push_back(loss_of(line, text, " would be left out"));
    if (line.role == LineRole::Command &&
        says_more_than(line.content(text), result.input.commands[*line.index]))
      left_out.push_back(loss_of(line, text, " says more than its command, which would be lost"));
  }
  return left_out;
}

ExitCode format(Session& session, const std::string& argument, const Delivery& delivery,
                const LossPolicy& policy) {
  const InputSource source = read_input(session, argument);
  const ParseResult result = parse_string(source.content);
  report_warnings(session.reporter(), source.name, result);

  edit_support::SpelledDocument spelled = edit_support::spell(result.input);
  const std::string text = spelled.document.to_string();
  const edit_support::Proof proof = edit_support::prove(text, result.input, policy.max_change);
  std::vector<Loss> losses = list_left_out(source.content, result);
  for (const std::string& reason : spelled.reasons) losses.emplace_back(reason);
  note_number_changes(session, source.name, proof.comparison.number_changes);
  if (!accept_losses(session, source.name, list_losses(std::move(losses), proof), policy))
    return ExitCode::Trouble;
  return deliver(session, source, text, delivery);
}

}  // namespace

Verb add_fmt(CLI::App& program) {
  CLI::App* app = add_verb(program, "fmt", "Lay inputs out in the canonical way", example);
  add_arguments(*app, "FILE", "The inputs");
  add_delivery_options(*app, true);
  add_loss_options(*app);
  add_common_options(*app);
  return {app, [=](Session& session) {
            const Delivery delivery = read_delivery(*app);
            const LossPolicy policy = read_loss_policy(*app);
            return for_each_file(session, values_of(*app, "FILE"),
                                 [&](const std::string& argument) {
                                   return format(session, argument, delivery, policy);
                                 });
          }};
}

}  // namespace kelp::input::quill::tool
