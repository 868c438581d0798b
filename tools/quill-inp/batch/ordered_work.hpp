#ifndef KELP_INPUT_QUILL_TOOL_BATCH_ORDERED_WORK_HPP
#define KELP_INPUT_QUILL_TOOL_BATCH_ORDERED_WORK_HPP

#include <cstddef>
#include <functional>

namespace kelp::input::quill::tool {

/// Pieces of work, numbered from 0, and what to do with each when it is done.
struct OrderedWork {
  std::size_t count = 0;
  std::function<void(std::size_t)> work = {};     // on any thread
  std::function<void(std::size_t)> deliver = {};  // on the calling thread, in order
  std::function<void()> pass_time = {};           // on the calling thread, while it waits
};

/// The largest number of pieces that are begun and not delivered, for this number of threads: what
/// is ready waits for the pieces before it, and must not fill the memory. So a piece may use the
/// room of the piece that is this number of pieces before it.
std::size_t window_of(unsigned threads);

/// Does all pieces of work on this number of threads, 1 or more, and delivers them in the order of
/// their numbers. When a piece throws, the pieces before it are delivered, those that are begun are
/// finished, no others are begun, and the exception is thrown again. `deliver` may throw, too. If
/// the system gives fewer threads, they do all the work.
void do_in_order(const OrderedWork& pieces, unsigned threads);

}  // namespace kelp::input::quill::tool

#endif  // KELP_INPUT_QUILL_TOOL_BATCH_ORDERED_WORK_HPP
