#ifndef KELP_INPUT_QUILL_TOOL_FORMATS_DOCUMENT_JSON_HPP
#define KELP_INPUT_QUILL_TOOL_FORMATS_DOCUMENT_JSON_HPP

// A document as JSON and back, without loss. docs/quill-inp.schema.json describes the form; members
// are named as in the library, and those that hold what a new document would hold are left out.

#include <string>
#include <string_view>

#include "kelp/input/quill/document.hpp"
#include "quill-inp/formats/json_text.hpp"

namespace kelp::input::quill::tool {

/// Returns the document as a JSON text of several lines. Every kind is one of its enumeration.
std::string document_to_json(const QuillInput& input);

/// Returns the document that a JSON text describes. Throws Trouble, naming the place, for a text
/// that is not JSON or not of the form: an unknown member is refused, since ignoring it could lose
/// something.
QuillInput document_from_json(std::string_view text);

/// Return a command or a post-processing line in the form that it has in the JSON of a document.
OrderedJson to_json(const HeaderCommand& command);
OrderedJson to_json(const PostCommand& command);

}  // namespace kelp::input::quill::tool

#endif  // KELP_INPUT_QUILL_TOOL_FORMATS_DOCUMENT_JSON_HPP
