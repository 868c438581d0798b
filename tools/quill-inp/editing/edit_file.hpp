#ifndef KELP_INPUT_QUILL_TOOL_EDITING_EDIT_FILE_HPP
#define KELP_INPUT_QUILL_TOOL_EDITING_EDIT_FILE_HPP

#include <functional>
#include <string>
#include <vector>

#include "kelp/input/quill/lossless/surgical_edit.hpp"
#include "kelp/input/quill/lossless/tracked_document.hpp"
#include "quill-inp/batch/each_file.hpp"
#include "quill-inp/batch/file_choice.hpp"
#include "quill-inp/editing/delivery.hpp"
#include "quill-inp/editing/edit_report.hpp"
#include "quill-inp/editing/loss_policy.hpp"
#include "quill-inp/editing/losses.hpp"
#include "quill-inp/process/exit_code.hpp"
#include "quill-inp/session/input_source.hpp"

namespace kelp::input::quill::tool {

/// Changes a document and returns what to report about that. May throw UsageError.
using Edit = std::function<EditReport(lossless::TrackedDocument&)>;

/// Which files to edit, where the new texts go, and what they may lose.
struct EditOptions {
  FileChoice files = {};
  BatchOptions batch = {};
  Delivery delivery = {};
  LossPolicy policy = {};
};

/// Add the options of a verb that edits files, and read them. The arguments name files, too.
/// Reading throws UsageError.
void add_edit_options(CLI::App& verb);
EditOptions read_edit_options(const CLI::App& verb, const std::vector<std::string>& arguments);

/// Makes the same edit in every file. It may be called for several files at once.
ExitCode edit_files(Session& session, const EditOptions& options, const Edit& edit);

/// Whether to print the notes about an edit. For the second of two equal edits they are not
/// printed.
enum class EditNotes { Told, Untold };

/// A new text that is not proved yet, and what is needed to judge its proof. If something forbids
/// the edit, `code` is not Done, and the text is empty.
struct MadeEdit {
  ExitCode code = ExitCode::Done;
  lossless::TrackedDocument document;
  lossless::NewText text = {};
  std::vector<SettingLoss> setting_losses = {};
  std::vector<LineLoss> line_losses = {};
};

/// Edits an input that was read, and reports, under `name`, what is missing and what is refused.
/// The result keeps views of the text of the input.
MadeEdit make_edit(Session& session, const std::string& name, const ReadInput& input,
                   const Edit& edit, const LossPolicy& policy, EditNotes notes);

/// Frees the memory of everything that was needed only to make the new text: the proof needs as
/// much.
void forget_all_but_texts(ReadInput& input, MadeEdit& made);

/// Proves the text of such an edit. Only the text of the input is needed for that. Returns whether
/// it may be written; what is lost or refused is reported. To be called once.
bool accept_edit(Session& session, const std::string& name, MadeEdit& made,
                 const LossPolicy& policy, EditNotes notes);

/// Reads an input, edits its document and delivers the whole new text or nothing. The answer is
/// "no" when something is missing. Throws Trouble and UsageError.
ExitCode edit_file(Session& session, const std::string& argument, const Edit& edit,
                   const Delivery& delivery, const LossPolicy& policy);

}  // namespace kelp::input::quill::tool

#endif  // KELP_INPUT_QUILL_TOOL_EDITING_EDIT_FILE_HPP
