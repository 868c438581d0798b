#include "quill-inp/process/held_signals.hpp"

#include <sched.h>

#include <atomic>

namespace kelp::input::quill::tool {

namespace {

// A mutex cannot be taken in a signal handler; this can.
std::atomic_flag is_taken = ATOMIC_FLAG_INIT;
thread_local int objects_of_thread = 0;

void take() {
  while (is_taken.test_and_set(std::memory_order_acquire)) sched_yield();
}

void give_back() { is_taken.clear(std::memory_order_release); }

}  // namespace

sigset_t ending_signal_set() {
  sigset_t set;
  sigemptyset(&set);
  for (const int signal : ending_signals) sigaddset(&set, signal);
  return set;
}

HeldSignals::HeldSignals() {
  const sigset_t set = ending_signal_set();
  pthread_sigmask(SIG_BLOCK, &set, &former_);
  if (objects_of_thread++ == 0) take();
}

HeldSignals::~HeldSignals() {
  if (--objects_of_thread == 0) give_back();
  pthread_sigmask(SIG_SETMASK, &former_, nullptr);
}

HeldThreads::HeldThreads() { take(); }

HeldThreads::~HeldThreads() { give_back(); }

}  // namespace kelp::input::quill::tool
