// Any bytes as the number of an allocation that fails, and the work of the library during which it
// fails.

#include <cstddef>
#include <cstdint>

#include "fuzz/target.hpp"
#include "properties/allocation_faults.hpp"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  kelp::input::quill::check_allocation_fault(kelp::input::quill::as_text(data, size));
  return 0;
}
