#include "quill-inp/temporary_file.hpp"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstddef>
#include <cstdint>
#include <random>

#include "quill-inp/trouble.hpp"

namespace kelp::input::quill::tool {

namespace {

constexpr int caught_signals[] = {SIGINT, SIGTERM, SIGHUP};
constexpr std::size_t signal_count = sizeof caught_signals / sizeof caught_signals[0];
constexpr std::size_t name_room = 64;

// What the signal handler needs, in a form that it may use at any moment: while it may run, nothing
// here changes but for `is_armed`.
volatile std::sig_atomic_t is_armed = 0;
int armed_folder = -1;
char armed_name[name_room] = {};
struct sigaction former_actions[signal_count] = {};

extern "C" void remove_temporary_file(int signal) {
  const int error = errno;
  if (is_armed != 0) unlinkat(armed_folder, armed_name, 0);
  for (std::size_t i = 0; i < signal_count; ++i) {
    if (caught_signals[i] == signal) sigaction(signal, &former_actions[i], nullptr);
  }
  // It comes through as soon as this handler returns. There is nobody to tell of a failure.
  static_cast<void>(raise(signal));
  errno = error;
}

sigset_t caught_set() {
  sigset_t set;
  sigemptyset(&set);
  for (const int signal : caught_signals) sigaddset(&set, signal);
  return set;
}

/// Holds the signals back as long as the object lives.
class HeldSignals {
 public:
  HeldSignals() {
    const sigset_t set = caught_set();
    pthread_sigmask(SIG_BLOCK, &set, &former_);
  }
  HeldSignals(const HeldSignals&) = delete;
  HeldSignals& operator=(const HeldSignals&) = delete;
  ~HeldSignals() { pthread_sigmask(SIG_SETMASK, &former_, nullptr); }

 private:
  sigset_t former_ = {};
};

void arm(int folder, const std::string& name) {
  armed_folder = folder;
  armed_name[name.copy(armed_name, name_room - 1)] = '\0';
  is_armed = 1;
  struct sigaction action {};
  action.sa_handler = remove_temporary_file;
  action.sa_mask = caught_set();
  for (std::size_t i = 0; i < signal_count; ++i) {
    sigaction(caught_signals[i], nullptr, &former_actions[i]);
    // Who started the program under nohup wants it to go on.
    if (former_actions[i].sa_handler != SIG_IGN) sigaction(caught_signals[i], &action, nullptr);
  }
}

void disarm() {
  is_armed = 0;
  for (std::size_t i = 0; i < signal_count; ++i)
    sigaction(caught_signals[i], &former_actions[i], nullptr);
}

/// The name does not grow with that of the target, which may be as long as names can be.
std::string random_name() {
  constexpr char digits[] = "0123456789abcdef";
  std::random_device random;
  std::string name = ".quill-inp.";
  for (int i = 0; i < 4; ++i) {
    for (std::uint32_t number = random(), j = 0; j < 4; ++j, number >>= 4U)
      name += digits[number & 0xFU];
  }
  return name;
}

constexpr int most_tries = 100;

int create_new_file(int folder, std::string& name) {
  for (int i = 0; i < most_tries; ++i) {
    name = random_name();
    const int file =
        open_in(folder, name, O_RDWR | O_CREAT | O_EXCL | O_NOFOLLOW, S_IRUSR | S_IWUSR);
    if (file >= 0 || errno != EEXIST) return file;
  }
  return -1;
}

}  // namespace

TemporaryFile::TemporaryFile(int folder) : folder_(folder), file_(-1) {
  const HeldSignals held;
  file_ = FileDescriptor(create_new_file(folder, name_));
  if (file_.number() < 0)
    throw_system_trouble("cannot create a temporary file in the same folder", errno);
  arm(folder, name_);
}

TemporaryFile::~TemporaryFile() {
  const HeldSignals held;
  if (!is_placed_) unlinkat(folder_, name_.c_str(), 0);
  disarm();
}

void TemporaryFile::take_place_of(const std::string& name) {
  const HeldSignals held;
  if (renameat(folder_, name_.c_str(), folder_, name.c_str()) != 0)
    throw_system_trouble("cannot be replaced", errno);
  is_placed_ = true;
  is_armed = 0;
}

bool TemporaryFile::take_free_name(const std::string& name) {
  // A link is made in one step or not at all, and never takes the place of a file. The name that
  // remains beside it goes with the object.
  if (linkat(folder_, name_.c_str(), folder_, name.c_str(), 0) == 0) return true;
  if (errno == EEXIST) return false;
  if (errno != EPERM && errno != ENOTSUP)
    throw_system_trouble("the backup '" + name + "' cannot be made", errno);
  // Some file systems know no links. There the name can only be looked at first.
  struct stat state {};
  if (fstatat(folder_, name.c_str(), &state, AT_SYMLINK_NOFOLLOW) == 0) return false;
  take_place_of(name);
  return true;
}

}  // namespace kelp::input::quill::tool
