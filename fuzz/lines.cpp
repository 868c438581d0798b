// Any bytes as one line, for each of the library's internal readers of lines.

#include <cstddef>
#include <cstdint>

#include "fuzz/target.hpp"
#include "properties/line_readers.hpp"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  kelp::input::quill::check_line_readers(kelp::input::quill::as_text(data, size));
  return 0;
}
