#include "quill-inp/files/unfinished_files.hpp"

#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstddef>
#include <optional>
#include <utility>

#include "quill-inp/process/held_signals.hpp"

namespace kelp::input::quill::tool {

namespace {

constexpr std::size_t signal_count = sizeof ending_signals / sizeof ending_signals[0];

// What the signal handler needs. It is changed only while the signals are held, so never while the
// handler can run.
lossless::UnfinishedFile* first_listed = nullptr;
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

extern "C" void remove_unfinished_files(int signal) {
  const int error = errno;
  // Otherwise, the other threads would continue to create files and to change the list.
  const HeldThreads held;
  for (const auto* file = first_listed; file != nullptr; file = file->next)
    unlinkat(file->folder, file->name.c_str(), 0);
  pass_on(signal);
  errno = error;
}

void catch_signals() {
  struct sigaction action {};
  action.sa_handler = remove_unfinished_files;
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

/// The signals are held as long as the outermost step of a thread lasts.
thread_local int steps_of_thread = 0;
thread_local std::optional<HeldSignals> held_by_thread;

class RemovedOnSignal : public lossless::UnfinishedFiles {
 public:
  void begin_step() noexcept override {
    if (steps_of_thread++ == 0) held_by_thread.emplace();
    begin_catching();
  }

  void end_step() noexcept override {
    end_catching();
    if (--steps_of_thread == 0) held_by_thread.reset();
  }

  void add(lossless::UnfinishedFile& file) noexcept override {
    begin_catching();
    file.next = std::exchange(first_listed, &file);
  }

  void remove(lossless::UnfinishedFile& file) noexcept override {
    lossless::UnfinishedFile** link = &first_listed;
    while (*link != &file) link = &(*link)->next;
    *link = file.next;
    end_catching();
  }
};

}  // namespace

lossless::UnfinishedFiles& unfinished_files() {
  static RemovedOnSignal all;
  return all;
}

}  // namespace kelp::input::quill::tool
