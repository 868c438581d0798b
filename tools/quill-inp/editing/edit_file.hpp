#ifndef KELP_INPUT_QUILL_TOOL_EDITING_EDIT_FILE_HPP
#define KELP_INPUT_QUILL_TOOL_EDITING_EDIT_FILE_HPP

#include <functional>
#include <string>

#include "kelp/input/quill/lossless/tracked_document.hpp"
#include "quill-inp/editing/delivery.hpp"
#include "quill-inp/editing/edit_report.hpp"
#include "quill-inp/editing/loss_policy.hpp"
#include "quill-inp/process/exit_code.hpp"

namespace kelp::input::quill::tool {

/// Changes a document and returns what to report about that. May throw UsageError.
using Edit = std::function<EditReport(lossless::TrackedDocument&)>;

/// Reads an input, edits its document and delivers the whole new text or nothing. The answer is
/// "no" when something is missing. Throws Trouble and UsageError.
ExitCode edit_file(Session& session, const std::string& argument, const Edit& edit,
                   const Delivery& delivery, const LossPolicy& policy);

}  // namespace kelp::input::quill::tool

#endif  // KELP_INPUT_QUILL_TOOL_EDITING_EDIT_FILE_HPP
