#ifndef KELP_INPUT_QUILL_TOOL_FORMATS_DOCUMENT_JSON_PARTS_HPP
#define KELP_INPUT_QUILL_TOOL_FORMATS_DOCUMENT_JSON_PARTS_HPP

#include "kelp/input/quill/document.hpp"
#include "quill-inp/formats/json_text.hpp"

namespace kelp::input::quill::tool {

/// Return a command or a post-processing line in the form that it has in the JSON of a document.
OrderedJson to_json(const HeaderCommand& command);
OrderedJson to_json(const PostCommand& command);

}  // namespace kelp::input::quill::tool

#endif  // KELP_INPUT_QUILL_TOOL_FORMATS_DOCUMENT_JSON_PARTS_HPP
