#include "quill-inp/process/held_signals.hpp"

namespace kelp::input::quill::tool {

sigset_t ending_signal_set() {
  sigset_t set;
  sigemptyset(&set);
  for (const int signal : ending_signals) sigaddset(&set, signal);
  return set;
}

HeldSignals::HeldSignals() {
  const sigset_t set = ending_signal_set();
  pthread_sigmask(SIG_BLOCK, &set, &former_);
}

HeldSignals::~HeldSignals() { pthread_sigmask(SIG_SETMASK, &former_, nullptr); }

}  // namespace kelp::input::quill::tool
