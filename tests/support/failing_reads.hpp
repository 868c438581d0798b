#ifndef KELP_INPUT_QUILL_TESTS_SUPPORT_FAILING_READS_HPP
#define KELP_INPUT_QUILL_TESTS_SUPPORT_FAILING_READS_HPP

#include <cstddef>
#include <functional>

namespace kelp::input::quill {

/// In a program that is linked with failing_reads.cpp: for as long as the object lives, every call
/// of read() gives 1000 bytes at most, and call number `failing`, counted from 1, fails with
/// `error`, once, or comes after `event`. There is one window at a time, in a program of one
/// thread.
class ReadWindow {
 public:
  ReadWindow(std::size_t failing, int error) noexcept;
  ReadWindow(std::size_t call, std::function<void()> event) noexcept;
  ReadWindow(const ReadWindow&) = delete;
  ReadWindow& operator=(const ReadWindow&) = delete;
  ~ReadWindow();

  std::size_t reads() const noexcept;
};

}  // namespace kelp::input::quill

#endif  // KELP_INPUT_QUILL_TESTS_SUPPORT_FAILING_READS_HPP
