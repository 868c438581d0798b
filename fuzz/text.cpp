// Any bytes as the argument of the text and element functions.

#include <cstddef>
#include <cstdint>

#include "fuzz/target.hpp"
#include "properties/text_functions.hpp"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  kelp::input::quill::check_text_functions(kelp::input::quill::as_text(data, size));
  return 0;
}
