#ifndef KELP_INPUT_QUILL_TESTS_SCALE_MEASURING_HPP
#define KELP_INPUT_QUILL_TESTS_SCALE_MEASURING_HPP

#include <cstddef>
#include <cstdint>
#include <ctime>

#include "scale/counted_memory.hpp"

namespace kelp::input::quill {

/// What one piece of work took.
struct Cost {
  /// Of the processor, for this process alone: what else the machine does hardly counts.
  double seconds = 0.0;
  /// Bytes that were allocated at the same time, beyond those before the work.
  std::int64_t peak_bytes = 0;
  std::int64_t allocations = 0;
};

template <typename Work>
Cost cost_of(Work work) {
  const MemoryCount memory;
  const std::clock_t start = std::clock();
  work();
  const std::clock_t end = std::clock();
  return {static_cast<double>(end - start) / CLOCKS_PER_SEC, memory.peak_bytes(),
          memory.allocations()};
}

}  // namespace kelp::input::quill

#endif  // KELP_INPUT_QUILL_TESTS_SCALE_MEASURING_HPP
