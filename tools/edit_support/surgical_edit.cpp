#include "edit_support/surgical_edit.hpp"

#include <algorithm>
#include <utility>

#include "edit_support/coordinate_surgery.hpp"
#include "edit_support/edited_lines.hpp"
#include "edit_support/header_surgery.hpp"
#include "edit_support/line_account.hpp"
#include "edit_support/tracked_document.hpp"
#include "kelp/input/quill/writer.hpp"

namespace kelp::input::quill::edit_support {

namespace {

bool is_post_processing(const AccountedLine& line) {
  return line.role == LineRole::PostCommand || line.role == LineRole::Dropped;
}

/// Post-processing lines are only ever appended.
void add_post_lines(const std::vector<AccountedLine>& account, const QuillInput& before,
                    const QuillInput& after, EditedLines& lines) {
  std::vector<std::string> added;
  for (std::size_t i = before.post_commands.size(); i < after.post_commands.size(); ++i)
    added.push_back(to_string(after.post_commands[i]));
  if (added.empty()) return;
  const std::size_t gap = lines.gap_behind_text();
  if (std::none_of(account.begin(), account.end(), is_post_processing)) {
    lines.insert_section(gap, std::move(added));
    return;
  }
  for (std::string& line : added) lines.insert(gap, std::move(line));
}

/// What stands behind a closing parenthesis is no part of the command, and goes with its line.
std::vector<std::string> notes_on(const std::vector<std::size_t>& replaced,
                                  const std::vector<std::string>& warnings) {
  std::vector<std::string> notes;
  for (const std::size_t line : replaced) {
    const std::string subject = "Line " + std::to_string(line + 1) + ": ";
    const auto warning = std::find(warnings.begin(), warnings.end(),
                                   subject + "ignored trailing text after QUILL header command");
    if (warning != warnings.end())
      notes.push_back("line " + std::to_string(line + 1) +
                      " loses the text after its closing parenthesis");
  }
  return notes;
}

}  // namespace

std::string SurgicalEdit::refusal() const {
  return spelling_reasons.empty() ? proof.explanation : spelling_reasons.front();
}

SurgicalEdit edit_text(std::string_view text, const std::vector<Edit>& edits, double max_change) {
  const ParseResult read = parse_string(text);
  const std::vector<AccountedLine> account = account_for_lines(text, read);
  TrackedDocument document(read.input);
  for (const Edit& edit : edits) document.apply(edit);
  const QuillInput& meant = document.document();

  EditedLines lines(text, account);
  HeaderSurgery header(account, read.input, document);
  CoordinateSurgery coordinates(account, read.input.geometry, meant.geometry);
  header.change_lines(lines);
  coordinates.change_lines(lines);
  header.add_lines(lines);
  coordinates.add_lines(lines, header.end());
  add_post_lines(account, read.input, meant, lines);

  EditedText edited = lines.finish();
  SurgicalEdit result;
  result.text = std::move(edited.text);
  result.meant = meant;
  result.changes = std::move(edited.changes);
  result.spelling_reasons = header.reasons();
  result.notes = notes_on(header.replaced(), read.warnings);
  result.proof = prove(result.text, result.meant, max_change);
  return result;
}

}  // namespace kelp::input::quill::edit_support
