#include "quill-inp/editing/edit_file.hpp"

#include <utility>
#include <vector>

#include "kelp/input/quill/lossless/surgical_edit.hpp"
#include "quill-inp/command_line/file_options.hpp"
#include "quill-inp/editing/addition_doubts.hpp"
#include "quill-inp/editing/ambiguity_notes.hpp"
#include "quill-inp/editing/change_report.hpp"
#include "quill-inp/editing/strictness.hpp"
#include "quill-inp/editing/wording.hpp"
#include "quill-inp/session/input_source.hpp"

namespace kelp::input::quill::tool {

namespace {

using lossless::NewText;
using lossless::ReadText;
using lossless::TrackedDocument;

void report_notes(Session& session, const ReadInput& input, const EditReport& report) {
  for (const EditNote& note : report.notes) {
    Place place{input.name};
    if (note.command)
      place.line =
          1 + lossless::find_line(input.read.lines, LineRole::Command, note.command).value();
    session.reporter().note(place, words(note));
  }
  for (const Ambiguity& ambiguity : report.ambiguities) note_ambiguity(session, input, ambiguity);
}

/// The folder that paths in an input are relative to.
std::string folder_of(const std::string& argument) {
  const std::size_t slash = argument.rfind('/');
  return slash == std::string::npos ? "." : argument.substr(0, slash + 1);
}

}  // namespace

void add_edit_options(CLI::App& verb) {
  add_delivery_options(verb);
  add_loss_options(verb);
  add_file_options(verb);
}

EditOptions read_edit_options(const CLI::App& verb, const std::vector<std::string>& arguments) {
  EditOptions options{read_file_choice(verb, arguments), read_batch_options(verb),
                      read_delivery(verb), read_loss_policy(verb)};
  require_one_text(options.delivery, options.files);
  options.files.takes_each_once = options.delivery.in_place;
  if (options.delivery.in_place) options.batch.counted = "changed";
  return options;
}

ExitCode edit_files(Session& session, const EditOptions& options, const Edit& edit) {
  const ChosenFiles files = choose_files(session, options.files);
  return for_each_file(session, files, options.batch,
                       [&](Session& one, const std::string& argument) {
                         return edit_file(one, argument, edit, options.delivery, options.policy);
                       });
}

MadeEdit make_edit(Session& session, const std::string& name, const ReadInput& input,
                   const Edit& edit, const LossPolicy& policy, EditNotes notes) {
  MadeEdit made{ExitCode::Done, TrackedDocument(input.read.result.input)};
  EditReport report = edit(made.document);
  if (notes == EditNotes::Told) report_notes(session, input, report);
  for (const MissingAnswer& missing : report.missing)
    session.reporter().note({name}, words(missing));
  if (!report.missing.empty()) made.code = ExitCode::No;
  if (made.code != ExitCode::Done) return made;

  const auto doubts = find_addition_doubts(input.read.result.input, made.document.document(),
                                           folder_of(input.name));
  if (!accept_additions(session, name, doubts, policy)) made.code = ExitCode::Trouble;
  if (made.code != ExitCode::Done) return made;

  made.text = lossless::rewrite(input.read, made.document);
  made.setting_losses = std::move(report.losses);
  made.line_losses = list_header_losses(input.read, made.text);
  return made;
}

void forget_all_but_texts(ReadInput& input, MadeEdit& made) {
  forget_lines(input);
  input.read.result = ParseResult();
  made.text.changes = std::vector<lossless::LineChange>();
}

bool accept_edit(Session& session, const std::string& name, MadeEdit& made,
                 const LossPolicy& policy, EditNotes notes) {
  const QuillInput& wanted = made.document.document();
  const lossless::Proof proof = lossless::prove(made.text.text, wanted, policy.max_change);
  if (notes == EditNotes::Told) note_number_changes(session, name, proof.comparison.number_changes);
  const Losses losses{std::move(made.setting_losses), std::move(made.line_losses),
                      std::move(made.text.quoting_problems), proof, wanted};
  return accept_losses(session, name, losses, policy);
}

ExitCode edit_file(Session& session, const std::string& argument, const Edit& edit,
                   const Delivery& delivery, const LossPolicy& policy) {
  ReadInput input = read_for_delivery(session, argument, delivery);
  if (!accept_as_input(session, input, policy)) return ExitCode::Trouble;
  report_warnings(session.reporter(), input.name, input.read.result);
  MadeEdit made = make_edit(session, input.name, input, edit, policy, EditNotes::Told);
  if (made.code != ExitCode::Done) return made.code;
  // If memory ran out after the file was written, the error would look as if it was not written. So
  // the notes, which can take much memory, are made first.
  std::vector<ChangeNote> notes;
  if (delivery.in_place) notes = describe_changes(input, made.text);
  forget_all_but_texts(input, made);

  if (!accept_edit(session, input.name, made, policy, EditNotes::Told)) return ExitCode::Trouble;
  made.document = TrackedDocument(QuillInput());
  if (!accept_findings(session, argument, made.text.text, policy)) return ExitCode::Trouble;
  const ExitCode code = deliver(session, input, made.text.text, delivery);
  for (const ChangeNote& note : notes) session.reporter().note(note.place, note.message);
  return code;
}

}  // namespace kelp::input::quill::tool
