#ifndef KELP_INPUT_QUILL_TESTS_TOOLS_QUILL_INP_SUPPORT_JSON_OF_HPP
#define KELP_INPUT_QUILL_TESTS_TOOLS_QUILL_INP_SUPPORT_JSON_OF_HPP

#include <string>
#include <string_view>

#include "quill-inp/formats/document_json.hpp"

namespace kelp::input::quill::tool {

/// Returns the JSON text of a document as a whole.
inline std::string json_of(const QuillInput& document) {
  std::string text;
  write_document_json(document, [&](std::string_view piece) { text += piece; });
  return text;
}

}  // namespace kelp::input::quill::tool

#endif  // KELP_INPUT_QUILL_TESTS_TOOLS_QUILL_INP_SUPPORT_JSON_OF_HPP
