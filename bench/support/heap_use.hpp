#ifndef KELP_INPUT_QUILL_BENCH_SUPPORT_HEAP_USE_HPP
#define KELP_INPUT_QUILL_BENCH_SUPPORT_HEAP_USE_HPP

#include <cstdint>
#include <functional>

namespace kelp::input::quill::bench {

/// How an operation used the heap: the number of allocations, and the most bytes in use at once,
/// without those in use before the operation. Bytes are the sizes of the blocks that the heap
/// returns, which are a little larger than what was asked for.
struct HeapUse {
  std::uint64_t allocations = 0;
  std::uint64_t peak_bytes = 0;
};

/// Runs `operation` once. In a program that links this, operator new is replaced by one that
/// counts, also for the libraries that the program loads. One thread only.
HeapUse measure_heap_use(const std::function<void()>& operation);

}  // namespace kelp::input::quill::bench

#endif  // KELP_INPUT_QUILL_BENCH_SUPPORT_HEAP_USE_HPP
