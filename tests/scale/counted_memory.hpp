#ifndef KELP_INPUT_QUILL_TESTS_SCALE_COUNTED_MEMORY_HPP
#define KELP_INPUT_QUILL_TESTS_SCALE_COUNTED_MEMORY_HPP

#include <cstdint>

// A program that is linked with counted_memory.cpp allocates through a global operator new that
// counts. The counts are those of the whole program, which must have only one thread.

namespace kelp::input::quill {

/// Counts from its construction on. Only one may exist at a time.
class MemoryCount {
 public:
  MemoryCount() noexcept;

  /// The most bytes allocated at a time, beyond those that were allocated at the beginning.
  std::int64_t peak_bytes() const noexcept;
  std::int64_t allocations() const noexcept;

 private:
  std::int64_t bytes_before_;
  std::int64_t allocations_before_;
};

}  // namespace kelp::input::quill

#endif  // KELP_INPUT_QUILL_TESTS_SCALE_COUNTED_MEMORY_HPP
