#include "support/heap_use.hpp"

#include <malloc.h>

#include <algorithm>
#include <cstddef>
#include <cstdlib>
#include <new>

namespace kelp::input::quill::bench {

namespace {

bool is_counting = false;
std::uint64_t allocations = 0;
std::uint64_t bytes_in_use = 0;
std::uint64_t peak_bytes = 0;

void note_allocation(void* block) {
  ++allocations;
  bytes_in_use += malloc_usable_size(block);
  peak_bytes = std::max(peak_bytes, bytes_in_use);
}

/// Blocks from before the counting began may be freed during it; they are not counted.
void note_release(void* block) {
  bytes_in_use -= std::min<std::uint64_t>(bytes_in_use, malloc_usable_size(block));
}

void* allocate(std::size_t size) {
  void* const block = std::malloc(std::max<std::size_t>(size, 1));
  if (block == nullptr) throw std::bad_alloc();
  if (is_counting) note_allocation(block);
  return block;
}

void release(void* block) noexcept {
  if (is_counting && block != nullptr) note_release(block);
  std::free(block);
}

}  // namespace

HeapUse measure_heap_use(const std::function<void()>& operation) {
  allocations = 0;
  bytes_in_use = 0;
  peak_bytes = 0;
  is_counting = true;
  operation();
  is_counting = false;
  return {allocations, peak_bytes};
}

}  // namespace kelp::input::quill::bench

void* operator new(std::size_t size) { return kelp::input::quill::bench::allocate(size); }

void operator delete(void* block) noexcept { kelp::input::quill::bench::release(block); }

void operator delete(void* block, std::size_t /*size*/) noexcept {
  kelp::input::quill::bench::release(block);
}
