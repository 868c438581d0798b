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

/// The most pieces that are begun and not delivered, for so many threads: what is ready waits for
/// the pieces before it, and must not fill the memory. A piece may so use the room of the piece
/// that comes this many before it.
std::size_t window_of(unsigned threads);

/// Does all pieces of work on so many threads, 1 or more, and delivers them in the order of their
/// numbers. When a piece throws, the pieces before it are delivered, those that are begun are
/// ended, no others are begun, and the exception is thrown on. `deliver` may throw, too. If the
/// system gives fewer threads, they do all the work.
void do_in_order(const OrderedWork& pieces, unsigned threads);

}  // namespace kelp::input::quill::tool

#endif  // KELP_INPUT_QUILL_TOOL_BATCH_ORDERED_WORK_HPP
