#ifndef KELP_INPUT_QUILL_TOOL_EDITING_PRINT_DOCUMENT_HPP
#define KELP_INPUT_QUILL_TOOL_EDITING_PRINT_DOCUMENT_HPP

#include <string>

#include "quill-inp/editing/loss_policy.hpp"
#include "quill-inp/process/exit_code.hpp"

namespace kelp::input::quill::tool {

/// Prints the canonical text of a document, with its values spelled so that they survive, if the
/// text is proved to read back as the document, or the policy allows that it does not. Errors go by
/// `name`; warnings are those that a reader of the text will get, and go by "<stdout>".
ExitCode print_document(Session& session, const std::string& name, const QuillInput& document,
                        const LossPolicy& policy);

}  // namespace kelp::input::quill::tool

#endif  // KELP_INPUT_QUILL_TOOL_EDITING_PRINT_DOCUMENT_HPP
