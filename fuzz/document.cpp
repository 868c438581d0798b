// Any bytes as the parts of a document: NUL, line breaks, unknown kinds and NaN included.

#include <cstddef>
#include <cstdint>

#include "fuzz/target.hpp"
#include "properties/everything.hpp"
#include "properties/made_document.hpp"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  kelp::input::quill::ByteSource source(kelp::input::quill::as_text(data, size));
  kelp::input::quill::check_document(kelp::input::quill::made_document(source));
  return 0;
}
