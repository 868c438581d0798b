#include "support/failing_allocator.hpp"

#include <atomic>
#include <cstddef>
#include <cstdlib>
#include <new>
#include <vector>

namespace kelp::input::quill {

namespace {

struct Counts {
  std::atomic<std::uint64_t> asked_for;
  std::atomic<std::int64_t> live;
  std::uint64_t failing;
  bool is_window_open;
  Shortage shortage;
};

// Zero before the first allocation of any initialiser.
Counts counts;

bool must_fail() noexcept {
  if (!counts.is_window_open) return false;
  const std::uint64_t number = ++counts.asked_for;
  const bool lasts = counts.shortage == Shortage::Lasting && counts.failing != 0;
  return lasts ? number >= counts.failing : number == counts.failing;
}

// The blocks come from malloc, so that the sanitizers watch them as any others.

void* allocate(std::size_t size) noexcept {
  if (must_fail()) return nullptr;
  void* const block = std::malloc(size == 0 ? 1 : size);
  if (block != nullptr) ++counts.live;
  return block;
}

void* allocate_or_throw(std::size_t size) {
  void* const block = allocate(size);
  if (block == nullptr) throw std::bad_alloc();
  return block;
}

void release(void* block) noexcept {
  if (block != nullptr) --counts.live;
  std::free(block);
}

}  // namespace

AllocationWindow::AllocationWindow(std::uint64_t failing, Shortage shortage) noexcept {
  counts.asked_for = 0;
  counts.failing = failing;
  counts.shortage = shortage;
  counts.is_window_open = true;
}

AllocationWindow::~AllocationWindow() { counts.is_window_open = false; }

std::uint64_t AllocationWindow::allocations() const noexcept { return counts.asked_for; }

std::int64_t live_allocations() noexcept { return counts.live; }

bool failed_copies_are_freed() {
  struct Element {
    Element() = default;
    Element(const Element& /*other*/) { throw std::bad_alloc(); }
  };
  const std::vector<Element> elements(1);
  const std::int64_t before = live_allocations();
  try {
    const std::vector<Element> copy(elements);
  } catch (const std::bad_alloc&) {
    return live_allocations() == before;
  }
  return true;
}

}  // namespace kelp::input::quill

// All of these are replaced, although by default they call one another: a sanitizer's own would not
// come here. Those for types of extended alignment are not, since there are no such types.

namespace quill = kelp::input::quill;

void* operator new(std::size_t size) { return quill::allocate_or_throw(size); }
void* operator new[](std::size_t size) { return quill::allocate_or_throw(size); }
void* operator new(std::size_t size, const std::nothrow_t& /*tag*/) noexcept {
  return quill::allocate(size);
}
void* operator new[](std::size_t size, const std::nothrow_t& /*tag*/) noexcept {
  return quill::allocate(size);
}

void operator delete(void* block) noexcept { quill::release(block); }
void operator delete[](void* block) noexcept { quill::release(block); }
void operator delete(void* block, std::size_t /*size*/) noexcept { quill::release(block); }
void operator delete[](void* block, std::size_t /*size*/) noexcept { quill::release(block); }
void operator delete(void* block, const std::nothrow_t& /*tag*/) noexcept { quill::release(block); }
void operator delete[](void* block, const std::nothrow_t& /*tag*/) noexcept {
  quill::release(block);
}
