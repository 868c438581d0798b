#include "quill-inp/batch/ordered_work.hpp"

#include <chrono>
#include <condition_variable>
#include <exception>
#include <mutex>
#include <new>
#include <system_error>
#include <thread>
#include <vector>

namespace kelp::input::quill::tool {

namespace {

constexpr std::size_t window_of_a_thread = 16;
constexpr std::size_t pieces_of_a_window = 4;  // in so many turns it is delivered
constexpr std::chrono::milliseconds time_to_wait{100};

/// Whether a piece is done, and what it threw.
struct Done {
  bool is_done = false;
  std::exception_ptr error = nullptr;
};

/// Workers take the next number, and the calling thread delivers what they have done.
class Workers {
 public:
  Workers(const OrderedWork& pieces, unsigned threads)
      : pieces_(pieces), done_(window_of(threads)) {
    threads_.reserve(threads);
    for (unsigned i = 0; i < threads; ++i) {
      try {
        threads_.emplace_back([this] { work(); });
      } catch (const std::system_error&) {
        return;
      } catch (const std::bad_alloc&) {
        return;
      }
    }
  }
  Workers(const Workers&) = delete;
  Workers& operator=(const Workers&) = delete;

  ~Workers() {
    {
      const std::lock_guard<std::mutex> lock(mutex_);
      is_stopped_ = true;
    }
    may_begin_.notify_all();
    for (std::thread& thread : threads_) thread.join();
  }

  bool are_there() const { return !threads_.empty(); }

  void deliver_all() {
    for (std::size_t i = 0; i < pieces_.count; ++i) {
      if (const std::exception_ptr error = wait_for(i)) std::rethrow_exception(error);
      pieces_.deliver(i);
      const std::lock_guard<std::mutex> lock(mutex_);
      done_[i % done_.size()] = {};
      delivered_ = i + 1;
      --waiting_;
      may_begin_.notify_one();
    }
  }

 private:
  void work() {
    std::unique_lock<std::mutex> lock(mutex_);
    for (;;) {
      may_begin_.wait(lock, [&] { return is_over() || next_ < delivered_ + done_.size(); });
      if (is_over()) return;
      const std::size_t number = next_++;
      lock.unlock();
      std::exception_ptr error = nullptr;
      try {
        pieces_.work(number);
      } catch (...) {
        error = std::current_exception();
      }
      lock.lock();
      done_[number % done_.size()] = {true, error};
      ++waiting_;
      if (error || is_worth_waking()) is_done_.notify_one();
      if (next_ == pieces_.count) may_begin_.notify_all();
    }
  }

  bool is_over() const { return is_stopped_ || next_ == pieces_.count; }

  /// To wake the calling thread for a small piece takes longer than the piece, so several wait for
  /// it. It looks by itself after a while, too.
  bool is_worth_waking() const {
    const bool are_several = waiting_ >= done_.size() / pieces_of_a_window;
    return (are_several || delivered_ + waiting_ == pieces_.count) &&
           done_[delivered_ % done_.size()].is_done;
  }

  std::exception_ptr wait_for(std::size_t number) {
    std::unique_lock<std::mutex> lock(mutex_);
    const Done& done = done_[number % done_.size()];
    while (!is_done_.wait_for(lock, time_to_wait, [&] { return done.is_done; })) {
      lock.unlock();
      pieces_.pass_time();
      lock.lock();
    }
    return done.error;
  }

  const OrderedWork& pieces_;
  std::mutex mutex_ = {};
  std::condition_variable may_begin_ = {};
  std::condition_variable is_done_ = {};
  std::vector<Done> done_;     // of the pieces from delivered_ on
  std::size_t next_ = 0;       // to begin
  std::size_t delivered_ = 0;  // so many
  std::size_t waiting_ = 0;    // so many are done and not delivered
  bool is_stopped_ = false;
  std::vector<std::thread> threads_ = {};
};

}  // namespace

std::size_t window_of(unsigned threads) { return threads * window_of_a_thread; }

void do_in_order(const OrderedWork& pieces, unsigned threads) {
  Workers workers(pieces, threads);
  if (workers.are_there()) {
    workers.deliver_all();
    return;
  }
  for (std::size_t i = 0; i < pieces.count; ++i) {
    pieces.work(i);
    pieces.deliver(i);
  }
}

}  // namespace kelp::input::quill::tool
