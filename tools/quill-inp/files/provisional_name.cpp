#include "quill-inp/files/provisional_name.hpp"

#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstddef>
#include <utility>

#include "quill-inp/process/held_signals.hpp"

namespace kelp::input::quill::tool {

namespace {

constexpr std::size_t signal_count = sizeof ending_signals / sizeof ending_signals[0];

// What the signal handler needs. It is changed only while the signals are held, so never while the
// handler can run.
ListedName* first_listed = nullptr;
std::size_t reasons_to_catch = 0;
struct sigaction former_actions[signal_count] = {};

/// Lets the program get a signal as if it was not caught. The effect of the signal comes before
/// this returns, if the program continues at all.
void pass_on(int signal) {
  for (std::size_t i = 0; i < signal_count; ++i) {
    if (ending_signals[i] == signal) sigaction(signal, &former_actions[i], nullptr);
  }
  sigset_t only;
  sigemptyset(&only);
  sigaddset(&only, signal);
  pthread_sigmask(SIG_UNBLOCK, &only, nullptr);
  // A failure cannot be reported from here.
  static_cast<void>(raise(signal));
}

extern "C" void remove_listed_names(int signal) {
  const int error = errno;
  // Otherwise, the other threads would continue to create files and to change the list.
  const HeldThreads held;
  for (const ListedName* name = first_listed; name != nullptr; name = name->next)
    unlinkat(name->folder, name->text.c_str(), 0);
  pass_on(signal);
  errno = error;
}

void catch_signals() {
  struct sigaction action {};
  action.sa_handler = remove_listed_names;
  // A second signal of these waits for the first: otherwise its handler would wait for the first
  // handler for ever.
  action.sa_mask = ending_signal_set();
  for (std::size_t i = 0; i < signal_count; ++i) {
    sigaction(ending_signals[i], nullptr, &former_actions[i]);
    // An ignored signal stays ignored: under nohup, the program has to continue.
    if (former_actions[i].sa_handler != SIG_IGN) sigaction(ending_signals[i], &action, nullptr);
  }
}

void leave_signals_alone() {
  for (std::size_t i = 0; i < signal_count; ++i)
    sigaction(ending_signals[i], &former_actions[i], nullptr);
}

void begin_catching() {
  if (reasons_to_catch++ == 0) catch_signals();
}

void end_catching() {
  if (--reasons_to_catch == 0) leave_signals_alone();
}

void list(ListedName& name) {
  begin_catching();
  name.next = std::exchange(first_listed, &name);
}

void take_off_list(const ListedName& name) {
  ListedName** link = &first_listed;
  while (*link != &name) link = &(*link)->next;
  *link = name.next;
  end_catching();
}

}  // namespace

CaughtSignals::CaughtSignals() noexcept {
  const HeldSignals held;
  begin_catching();
}

CaughtSignals::~CaughtSignals() {
  const HeldSignals held;
  end_catching();
}

ProvisionalName::ProvisionalName(int folder, std::string text) noexcept
    : name_{folder, std::move(text)} {
  const HeldSignals held;
  list(name_);
}

ProvisionalName::~ProvisionalName() {
  if (is_kept_) return;
  const HeldSignals held;
  unlinkat(name_.folder, name_.text.c_str(), 0);
  take_off_list(name_);
}

void ProvisionalName::keep() {
  if (is_kept_) return;
  const HeldSignals held;
  take_off_list(name_);
  is_kept_ = true;
}

}  // namespace kelp::input::quill::tool
