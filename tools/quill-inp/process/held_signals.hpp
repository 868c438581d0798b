#ifndef KELP_INPUT_QUILL_TOOL_PROCESS_HELD_SIGNALS_HPP
#define KELP_INPUT_QUILL_TOOL_PROCESS_HELD_SIGNALS_HPP

#include <csignal>

namespace kelp::input::quill::tool {

/// The signals by which a user or the system ends a program, and which leave it time to clean up.
inline constexpr int ending_signals[] = {SIGINT, SIGTERM, SIGHUP};

/// Returns the same signals as a set.
sigset_t ending_signal_set();

/// Holds these signals back as long as the object lives, so that no signal comes between steps that
/// belong together. Objects may be nested. Only one thread has such an object at a time; other
/// threads wait for it, as a signal handler does with HeldThreads.
class HeldSignals {
 public:
  HeldSignals();
  HeldSignals(const HeldSignals&) = delete;
  HeldSignals& operator=(const HeldSignals&) = delete;
  ~HeldSignals();

 private:
  sigset_t former_ = {};
};

/// For the handler of one of these signals: no thread has an object of HeldSignals as long as this
/// object lives. The handler may run in any thread, since a thread with such an object does not get
/// the signal.
class HeldThreads {
 public:
  HeldThreads();
  HeldThreads(const HeldThreads&) = delete;
  HeldThreads& operator=(const HeldThreads&) = delete;
  ~HeldThreads();
};

}  // namespace kelp::input::quill::tool

#endif  // KELP_INPUT_QUILL_TOOL_PROCESS_HELD_SIGNALS_HPP
