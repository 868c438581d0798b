#ifndef KELP_INPUT_QUILL_TOOL_KEYS_ANSWER_JSON_HPP
#define KELP_INPUT_QUILL_TOOL_KEYS_ANSWER_JSON_HPP

#include "kelp/input/quill/document.hpp"
#include "quill-inp/formats/json_writer.hpp"
#include "quill-inp/keys/key.hpp"

namespace kelp::input::quill::tool {

/// Writes what `input` has under a key, as one member of the object that is open, in the form of
/// the document's JSON: "command" or "parameter", "value" for a number or text, "paths", "atoms",
/// or "lines" for post-processing lines. So a value "flag" and a flag differ. Writes nothing and
/// returns false if the input does not have it.
bool write_answer(JsonWriter& json, const QuillInput& input, const Key& key);

}  // namespace kelp::input::quill::tool

#endif  // KELP_INPUT_QUILL_TOOL_KEYS_ANSWER_JSON_HPP
