#include "quill-inp/editing/edit_file.hpp"

#include <string_view>
#include <utility>

#include "edit_support/line_account.hpp"
#include "kelp/core/text.hpp"
#include "quill-inp/editing/change_report.hpp"
#include "quill-inp/editing/header_text_loss.hpp"
#include "quill-inp/session/input_source.hpp"

namespace kelp::input::quill::tool {

namespace {

void report_notes(Session& session, const InputSource& source, const ParseResult& result,
                  const std::vector<PlanNote>& notes) {
  if (notes.empty()) return;
  const auto account = edit_support::account_for_lines(source.content, result);
  for (const PlanNote& note : notes) {
    Place place{source.name};
    if (note.command) {
      const auto at =
          edit_support::find_line(account, edit_support::LineRole::Command, note.command);
      place.line = account.at(at.value()).number;
    }
    session.reporter().note(place, note.text);
  }
}

/// Returns the header lines that change or go and say more than the command that they were read as.
std::vector<Loss> list_lost_texts(std::string_view text, const ParseResult& result,
                                  const edit_support::SurgicalEdit& edit) {
  const auto account = edit_support::account_for_lines(text, result);
  std::vector<Loss> lost;
  for (const edit_support::LineChange& change : edit.changes) {
    if (!change.old_line) continue;
    const edit_support::AccountedLine& line = account[*change.old_line - 1];
    if (line.role == edit_support::LineRole::Command &&
        says_more_than(line.content(text), result.input.commands[*line.index]))
      lost.emplace_back("line " + std::to_string(line.number) +
                            " says more than its command, which would be lost: '" +
                            core::text::trim(line.content(text)) + "'",
                        line.number);
  }
  return lost;
}

/// Returns what gets lost: what the plan knows of, what stands on changed lines, and whatever does
/// not read back as meant.
std::vector<Loss> list_all_losses(const InputSource& source, const ParseResult& result,
                                  const EditPlan& plan, const edit_support::SurgicalEdit& edit) {
  std::vector<Loss> losses(plan.losses.begin(), plan.losses.end());
  const std::vector<Loss> texts = list_lost_texts(source.content, result, edit);
  losses.insert(losses.end(), texts.begin(), texts.end());
  if (!edit.holds()) {
    for (const std::string& reason : edit.spelling_reasons) losses.emplace_back(reason);
  }
  return list_losses(std::move(losses), edit.proof);
}

}  // namespace

ExitCode edit_file(Session& session, const std::string& argument,
                   const std::function<EditPlan(const QuillInput&)>& make_plan,
                   const Delivery& delivery, const LossPolicy& policy) {
  const InputSource source = read_input(session, argument);
  const ParseResult result = parse_string(source.content);
  report_warnings(session.reporter(), source.name, result);
  const EditPlan plan = make_plan(result.input);
  report_notes(session, source, result, plan.notes);
  for (const std::string& text : plan.missing) session.reporter().note({source.name}, text);
  if (!plan.missing.empty()) return ExitCode::No;

  const edit_support::SurgicalEdit edit =
      edit_support::edit_text(source.content, plan.edits, policy.max_change);
  note_number_changes(session, source.name, edit.proof.comparison.number_changes);
  if (!accept_losses(session, source.name, list_all_losses(source, result, plan, edit), policy))
    return ExitCode::Trouble;
  // Whatever fails for want of memory once the file holds the new text would say that it does not,
  // so what takes much of it comes first.
  std::vector<ChangeNote> notes;
  if (delivery.in_place) notes = describe_changes(source.name, source.content, edit);
  const ExitCode code = deliver(session, source, edit.text, delivery);
  for (const ChangeNote& note : notes) session.reporter().note(note.place, note.message);
  return code;
}

}  // namespace kelp::input::quill::tool
