#ifndef KELP_INPUT_QUILL_TOOL_FORMATS_DOCUMENT_JSON_HPP
#define KELP_INPUT_QUILL_TOOL_FORMATS_DOCUMENT_JSON_HPP

// Writes a document as JSON and reads it again, without loss. docs/quill-inp.schema.json describes
// the form. Members have the names of the library; members with the value that they have in a new
// document are left out.

#include <string_view>

#include "kelp/input/quill/document.hpp"
#include "quill-inp/formats/json_writer.hpp"

namespace kelp::input::quill::tool {

/// Writes the document as a JSON text of several lines: the members of the outermost objects and
/// the parts of the document each begin a line. Every kind must be in its enumeration.
void write_document_json(const QuillInput& input, const JsonWriter::Sink& sink);

/// Returns the document that a JSON text describes. Throws Trouble, with the line and the place in
/// the text, for a text that is not JSON or does not have this form. Unknown members are refused,
/// and two members with the same name in one object, since something could be lost otherwise.
QuillInput document_from_json(std::string_view text);

/// Whether a post-processing line is written with the text that it was read from.
enum class RawText { Written, LeftOut };

/// Write a part of a document, on one line, in the form that it has in the JSON of the document.
void write(JsonWriter& json, const HeaderCommand& command);
void write(JsonWriter& json, const CommandParameter& parameter);
void write(JsonWriter& json, const AtomRecord& atom);
void write(JsonWriter& json, const PostCommand& command, RawText raw_text);

}  // namespace kelp::input::quill::tool

#endif  // KELP_INPUT_QUILL_TOOL_FORMATS_DOCUMENT_JSON_HPP
