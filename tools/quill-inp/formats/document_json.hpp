#ifndef KELP_INPUT_QUILL_TOOL_FORMATS_DOCUMENT_JSON_HPP
#define KELP_INPUT_QUILL_TOOL_FORMATS_DOCUMENT_JSON_HPP

// Writes a document as JSON and reads it again, without loss. docs/quill-inp.schema.json describes
// the form. Members have the names of the library; members with the value that they have in a new
// document are left out.

#include <string>
#include <string_view>

#include "kelp/input/quill/document.hpp"
#include "quill-inp/formats/json_text.hpp"

namespace kelp::input::quill::tool {

/// Returns the document as a JSON text of several lines. Every kind must be in its enumeration.
std::string document_to_json(const QuillInput& input);

/// Returns the document that a JSON text describes. Throws Trouble, with the place in the text, for
/// a text that is not JSON or does not have this form. Unknown members are refused, since something
/// could be lost if they were ignored.
QuillInput document_from_json(std::string_view text);

/// Return a command or a post-processing line in the form that it has in the JSON of a document.
OrderedJson to_json(const HeaderCommand& command);
OrderedJson to_json(const PostCommand& command);

}  // namespace kelp::input::quill::tool

#endif  // KELP_INPUT_QUILL_TOOL_FORMATS_DOCUMENT_JSON_HPP
