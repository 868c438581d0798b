#ifndef KELP_INPUT_QUILL_TOOL_PROCESS_HELD_SIGNALS_HPP
#define KELP_INPUT_QUILL_TOOL_PROCESS_HELD_SIGNALS_HPP

#include <csignal>

namespace kelp::input::quill::tool {

/// The signals that a user or the system ends a program with, and that leave it time to clean up.
inline constexpr int ending_signals[] = {SIGINT, SIGTERM, SIGHUP};

/// Returns the same signals as a set.
sigset_t ending_signal_set();

/// Holds these signals back as long as the object lives, so that no signal comes between steps that
/// belong together. Objects may be nested.
class HeldSignals {
 public:
  HeldSignals();
  HeldSignals(const HeldSignals&) = delete;
  HeldSignals& operator=(const HeldSignals&) = delete;
  ~HeldSignals();

 private:
  sigset_t former_ = {};
};

}  // namespace kelp::input::quill::tool

#endif  // KELP_INPUT_QUILL_TOOL_PROCESS_HELD_SIGNALS_HPP
