#include "tools/quill-inp/support/program.hpp"

#include <fcntl.h>
#include <poll.h>
#include <pty.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <linux/capability.h>

#include <array>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <stdexcept>

namespace kelp::input::quill::tool {

namespace {

[[noreturn]] void fail(const std::string& what) {
  throw std::runtime_error(what + " failed, errno " + std::to_string(errno));
}

/// The two ends of what connects a stream of the program with the test.
struct Channel {
  int program_end = -1;  // -1: the program gets a closed descriptor
  int test_end = -1;     // -1: the test has no part in it
};

Channel make_pipe(bool is_input) {
  int ends[2] = {-1, -1};
  if (pipe2(ends, O_CLOEXEC) != 0) fail("pipe2");
  return is_input ? Channel{ends[0], ends[1]} : Channel{ends[1], ends[0]};
}

Channel make_terminal() {
  Channel channel;
  if (openpty(&channel.test_end, &channel.program_end, nullptr, nullptr, nullptr) != 0)
    fail("openpty");
  fcntl(channel.test_end, F_SETFD, FD_CLOEXEC);
  return channel;
}

Channel make_channel(Connection connection, bool is_input) {
  switch (connection) {
    case Connection::Closed:
      return {};
    case Connection::FullDevice:
      return {open("/dev/full", O_RDWR | O_CLOEXEC), -1};
    case Connection::Terminal:
      return make_terminal();
    case Connection::BrokenPipe: {
      Channel channel = make_pipe(is_input);
      close(channel.test_end);
      channel.test_end = -1;
      return channel;
    }
    case Connection::Captured:
      break;
  }
  return make_pipe(is_input);
}

/// Takes away the rights that make the superuser exempt from permission bits.
void drop_privileges() {
  for (const int capability : {CAP_DAC_OVERRIDE, CAP_DAC_READ_SEARCH, CAP_CHOWN, CAP_FOWNER,
                               CAP_FSETID, CAP_SETFCAP, CAP_LINUX_IMMUTABLE})
    prctl(PR_CAPBSET_DROP, capability, 0, 0, 0);
}

void connect(const Channel& channel, int descriptor) {
  if (channel.program_end < 0) {
    close(descriptor);
  } else {
    dup2(channel.program_end, descriptor);
  }
}

void limit_files(std::size_t size) {
  const struct rlimit limit { size, size };
  setrlimit(RLIMIT_FSIZE, &limit);
}

/// Becomes the program; never returns.
[[noreturn]] void become_program(const Request& request, const std::array<Channel, 3>& channels,
                                 const std::string& path) {
  std::vector<char*> arguments;
  std::string name = path;
  std::vector<std::string> texts = request.arguments;
  arguments.push_back(name.data());
  for (std::string& text : texts) arguments.push_back(text.data());
  arguments.push_back(nullptr);
  for (const auto& [variable, value] : request.environment)
    setenv(variable.c_str(), value.c_str(), 1);
  if (chdir(request.folder.c_str()) != 0) _exit(126);
  if (request.umask) umask(*request.umask);
  if (request.largest_file) limit_files(*request.largest_file);
  for (const int signal : request.ignored_signals) std::signal(signal, SIG_IGN);
  if (request.without_privileges) drop_privileges();
  for (int i = 0; i < 3; ++i) connect(channels[static_cast<std::size_t>(i)], i);
  execv(path.c_str(), arguments.data());
  _exit(127);
}

/// Writes the input and reads the outputs, whichever is possible, until the program is done with
/// all of them.
class Conversation {
 public:
  Conversation(const std::array<Channel, 3>& channels, const std::string& input)
      : channels_(channels), input_(input) {}

  void run(std::string& out, std::string& err) {
    for (;;) {
      std::array<pollfd, 3> files{};
      int open_files = 0;
      for (std::size_t i = 0; i < files.size(); ++i) {
        files[i].fd = channels_[i].test_end;
        files[i].events = i == 0 ? POLLOUT : POLLIN;
        open_files += files[i].fd >= 0 ? 1 : 0;
      }
      if (open_files == 0) return;
      if (poll(files.data(), files.size(), -1) < 0 && errno != EINTR) fail("poll");
      if (files[0].revents != 0) send();
      if (files[1].revents != 0) receive(1, out);
      if (files[2].revents != 0) receive(2, err);
    }
  }

 private:
  void send() {
    const ssize_t count =
        sent_ < input_.size()
            ? write(channels_[0].test_end, input_.data() + sent_, input_.size() - sent_)
            : 0;
    if (count > 0) sent_ += static_cast<std::size_t>(count);
    if (count < 0 || sent_ == input_.size()) finish(0);
  }

  void receive(std::size_t index, std::string& text) {
    char chunk[4096];
    const ssize_t count = read(channels_[index].test_end, chunk, sizeof chunk);
    if (count > 0) {
      text.append(chunk, static_cast<std::size_t>(count));
    } else {
      finish(index);  // a terminal that is closed reads as an error
    }
  }

  void finish(std::size_t index) {
    close(channels_[index].test_end);
    channels_[index].test_end = -1;
  }

  std::array<Channel, 3> channels_;
  const std::string& input_;
  std::size_t sent_ = 0;
};

Outcome run_path(const Request& request, const std::string& path) {
  const std::array<Channel, 3> channels = {make_channel(request.in, true),
                                           make_channel(request.out, false),
                                           make_channel(request.err, false)};
  const pid_t child = fork();
  if (child < 0) fail("fork");
  if (child == 0) become_program(request, channels, path);
  for (const Channel& channel : channels) {
    if (channel.program_end >= 0) close(channel.program_end);
  }
  // A program that ends without reading its input would end the test with it.
  std::signal(SIGPIPE, SIG_IGN);
  Outcome outcome;
  Conversation(channels, request.input).run(outcome.out, outcome.err);
  int status = 0;
  while (waitpid(child, &status, 0) < 0) {
    if (errno != EINTR) fail("waitpid");
  }
  if (WIFEXITED(status)) outcome.code = WEXITSTATUS(status);
  if (WIFSIGNALED(status)) outcome.signal = WTERMSIG(status);
  return outcome;
}

}  // namespace

bool operator==(const Outcome& left, const Outcome& right) {
  return left.code == right.code && left.signal == right.signal && left.out == right.out &&
         left.err == right.err;
}

void PrintTo(const Outcome& outcome, std::ostream* stream) {
  if (outcome.code) *stream << "exit code " << *outcome.code;
  if (outcome.signal) *stream << "signal " << *outcome.signal;
  *stream << "\n--- standard output\n" << outcome.out << "--- standard error\n" << outcome.err;
}

Outcome ended(int code, std::string out, std::string err) {
  return {code, std::nullopt, std::move(out), std::move(err)};
}

Outcome run_program(const Request& request) { return run_path(request, program_path()); }

Outcome run_in(const std::string& folder, const std::vector<std::string>& arguments,
               const std::string& input) {
  Request request;
  request.arguments = arguments;
  request.folder = folder;
  request.input = input;
  return run_program(request);
}

Outcome run_shell(const std::string& folder, const std::string& command) {
  const std::string path = program_path();
  Request request;
  request.arguments = {"-c", "exec 2>&1\n" + command};
  request.folder = folder;
  request.environment["PATH"] = path.substr(0, path.rfind('/')) + ":/usr/local/bin:/usr/bin:/bin";
  return run_path(request, "/bin/sh");
}

// The variable is for a run with a program that was built in another way.
std::string program_path() {
  const char* const other = std::getenv("KELP_QUILL_INP_PROGRAM");
  return other != nullptr ? other : QUILL_INP_PROGRAM;
}

}  // namespace kelp::input::quill::tool
