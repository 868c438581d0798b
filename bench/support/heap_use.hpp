#ifndef KELP_INPUT_QUILL_BENCH_SUPPORT_HEAP_USE_HPP
#define KELP_INPUT_QUILL_BENCH_SUPPORT_HEAP_USE_HPP

#include <cstdint>
#include <functional>

namespace kelp::input::quill::bench {

/// What an operation asked of the heap: how often, and how much was in use at once at the most,
/// what was in use before it not counted. Bytes are those of the blocks as the heap hands them out,
/// which are a little larger than asked for.
struct HeapUse {
  std::uint64_t allocations = 0;
  std::uint64_t peak_bytes = 0;
};

/// Runs `operation` once. Programs that link this have their operator new replaced by one that
/// counts, for the libraries they load as well. One thread only.
HeapUse measure_heap_use(const std::function<void()>& operation);

}  // namespace kelp::input::quill::bench

#endif  // KELP_INPUT_QUILL_BENCH_SUPPORT_HEAP_USE_HPP
