// Any bytes as a text to find faults in, and to mend.

#include <cstddef>
#include <cstdint>

#include "fuzz/target.hpp"
#include "tools/properties/linting.hpp"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  kelp::input::quill::lint::check_linting(kelp::input::quill::as_text(data, size));
  return 0;
}
