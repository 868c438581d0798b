#ifndef KELP_INPUT_QUILL_TESTS_SUPPORT_FAILING_ALLOCATOR_HPP
#define KELP_INPUT_QUILL_TESTS_SUPPORT_FAILING_ALLOCATOR_HPP

#include <cstdint>

// A program that is linked with failing_allocator.cpp allocates through a global operator new that
// counts, and that fails on demand. The counts are those of the whole program, with all its
// threads.

namespace kelp::input::quill {

/// How long memory is short: for one allocation, or for it and all that follow.
enum class Shortage { Short, Lasting };

/// From construction to destruction, counts the allocations and lets some of them throw
/// std::bad_alloc. There is one window at a time, and only the thread that opened it is running
/// then and when it is closed.
class AllocationWindow {
 public:
  /// Lets allocation number `failing` fail, counted from 1, and all after it if the shortage lasts;
  /// with 0, none.
  explicit AllocationWindow(std::uint64_t failing = 0,
                            Shortage shortage = Shortage::Short) noexcept;
  ~AllocationWindow();
  AllocationWindow(const AllocationWindow&) = delete;
  AllocationWindow& operator=(const AllocationWindow&) = delete;

  /// Returns how many allocations were asked for, a failed one included.
  std::uint64_t allocations() const noexcept;
};

/// Returns how many blocks are allocated and not freed yet.
std::int64_t live_allocations() noexcept;

/// Whether a vector that cannot copy its first element frees its memory. In libc++ before release
/// 16 it does not, and then no program can.
bool failed_copies_are_freed();

}  // namespace kelp::input::quill

#endif  // KELP_INPUT_QUILL_TESTS_SUPPORT_FAILING_ALLOCATOR_HPP
