#ifndef KELP_INPUT_QUILL_TOOL_EDITING_PRINT_DOCUMENT_HPP
#define KELP_INPUT_QUILL_TOOL_EDITING_PRINT_DOCUMENT_HPP

#include <string>

#include "quill-inp/editing/loss_policy.hpp"
#include "quill-inp/editing/output_file.hpp"
#include "quill-inp/process/exit_code.hpp"

namespace kelp::input::quill::tool {

/// Prints the canonical text of a document, or writes it to a file, with quotes around values that
/// need them. The text has to be read back as the document, unless the policy allows losses. Errors
/// are reported under `name`, and the warnings that a reader of the text will get under the name of
/// the file, or "<stdout>".
ExitCode print_document(Session& session, const std::string& name, const QuillInput& document,
                        const LossPolicy& policy, const OutputFile& output);

}  // namespace kelp::input::quill::tool

#endif  // KELP_INPUT_QUILL_TOOL_EDITING_PRINT_DOCUMENT_HPP
