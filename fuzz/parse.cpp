// Any bytes as a text to be read.

#include <cstddef>
#include <cstdint>

#include "fuzz/target.hpp"
#include "properties/everything.hpp"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  kelp::input::quill::check_text(kelp::input::quill::as_text(data, size));
  return 0;
}
