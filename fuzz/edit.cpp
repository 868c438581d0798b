// Any bytes as a document and operations on it.

#include <cstddef>
#include <cstdint>

#include "fuzz/target.hpp"
#include "properties/editing.hpp"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  kelp::input::quill::check_edits(kelp::input::quill::as_text(data, size));
  return 0;
}
