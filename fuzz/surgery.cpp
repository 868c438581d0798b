// Any bytes as a text and edits that must change only the lines that have to change.

#include <cstddef>
#include <cstdint>

#include "fuzz/target.hpp"
#include "lossless/properties/surgery.hpp"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  kelp::input::quill::lossless::check_surgery(kelp::input::quill::as_text(data, size));
  return 0;
}
