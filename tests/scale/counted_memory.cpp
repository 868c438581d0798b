#include "scale/counted_memory.hpp"

#include <malloc.h>

#include <algorithm>
#include <cstddef>
#include <cstdlib>
#include <new>

namespace kelp::input::quill {

namespace {

struct Counts {
  std::int64_t bytes;
  std::int64_t peak_bytes;
  std::int64_t allocations;
};

// Zero before the first allocation of any initialiser.
Counts counts;

// Memory that was freed stays with the program. Without this setting, glibc maps new whole pages
// for every block above some size: a block twice as large may then take more than twice the bytes,
// and far more than twice the time. This runs before main, before other threads start.
// NOLINTBEGIN(concurrency-mt-unsafe)
[[maybe_unused]] const bool is_memory_kept =
    mallopt(M_MMAP_MAX, 0) != 0 && mallopt(M_TRIM_THRESHOLD, -1) != 0;
// NOLINTEND(concurrency-mt-unsafe)

std::int64_t size_of(void* block) { return static_cast<std::int64_t>(malloc_usable_size(block)); }

void* allocate(std::size_t size) noexcept {
  void* const block = std::malloc(size == 0 ? 1 : size);
  if (block == nullptr) return nullptr;
  ++counts.allocations;
  counts.bytes += size_of(block);
  counts.peak_bytes = std::max(counts.peak_bytes, counts.bytes);
  return block;
}

void* allocate_or_throw(std::size_t size) {
  void* const block = allocate(size);
  if (block == nullptr) throw std::bad_alloc();
  return block;
}

void release(void* block) noexcept {
  if (block != nullptr) counts.bytes -= size_of(block);
  std::free(block);
}

}  // namespace

MemoryCount::MemoryCount() noexcept
    : bytes_before_(counts.bytes), allocations_before_(counts.allocations) {
  counts.peak_bytes = counts.bytes;
}

std::int64_t MemoryCount::peak_bytes() const noexcept { return counts.peak_bytes - bytes_before_; }

std::int64_t MemoryCount::allocations() const noexcept {
  return counts.allocations - allocations_before_;
}

}  // namespace kelp::input::quill

// Every form is replaced: the address sanitizer brings its own of those that are not, and refuses
// to have a block of its own freed by one of these.

void* operator new(std::size_t size) { return kelp::input::quill::allocate_or_throw(size); }
void* operator new[](std::size_t size) { return kelp::input::quill::allocate_or_throw(size); }
void* operator new(std::size_t size, const std::nothrow_t& /*tag*/) noexcept {
  return kelp::input::quill::allocate(size);
}
void* operator new[](std::size_t size, const std::nothrow_t& /*tag*/) noexcept {
  return kelp::input::quill::allocate(size);
}
void operator delete(void* block) noexcept { kelp::input::quill::release(block); }
void operator delete[](void* block) noexcept { kelp::input::quill::release(block); }
void operator delete(void* block, std::size_t /*size*/) noexcept {
  kelp::input::quill::release(block);
}
void operator delete[](void* block, std::size_t /*size*/) noexcept {
  kelp::input::quill::release(block);
}
