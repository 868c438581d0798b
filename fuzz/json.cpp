// Any bytes as JSON for the tool, and as the parts of a document that it writes as JSON.

#include <cstddef>
#include <cstdint>

#include "fuzz/target.hpp"
#include "properties/made_document.hpp"
#include "tools/properties/document_json.hpp"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view text = kelp::input::quill::as_text(data, size);
  kelp::input::quill::ByteSource source(text);
  kelp::input::quill::tool::check_json_text(text);
  kelp::input::quill::tool::check_json_of(kelp::input::quill::made_document(source));
  return 0;
}
