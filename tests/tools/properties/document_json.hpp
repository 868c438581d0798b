#ifndef KELP_INPUT_QUILL_TESTS_TOOLS_PROPERTIES_DOCUMENT_JSON_HPP
#define KELP_INPUT_QUILL_TESTS_TOOLS_PROPERTIES_DOCUMENT_JSON_HPP

#include <string_view>

#include "kelp/input/quill/document.hpp"

namespace kelp::input::quill::tool {

/// A text is the JSON form of a document or a Trouble that says why not, and the document is
/// written as JSON of which it is read again. Throws a Violation.
void check_json_text(std::string_view text);

/// A document whose kinds exist is written as JSON of which it is read again, NaN by its sign.
/// Throws a Violation.
void check_json_of(QuillInput document);

}  // namespace kelp::input::quill::tool

#endif  // KELP_INPUT_QUILL_TESTS_TOOLS_PROPERTIES_DOCUMENT_JSON_HPP
