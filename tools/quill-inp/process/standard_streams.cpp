#include "quill-inp/process/standard_streams.hpp"

#include <fcntl.h>
#include <unistd.h>

#include <csignal>
#include <iostream>

namespace kelp::input::quill::tool {

namespace {

/// The caller passes the wrong direction, so that using the descriptor fails instead of doing
/// nothing.
void occupy(int descriptor, int flags) {
  if (fcntl(descriptor, F_GETFD) == -1)
    static_cast<void>(open("/dev/null", flags));  // takes the lowest free number, which is this one
}

}  // namespace

StandardStreams take_standard_streams() {
  static_cast<void>(std::signal(SIGPIPE, SIG_IGN));
  static_cast<void>(std::signal(SIGXFSZ, SIG_IGN));
  occupy(STDIN_FILENO, O_WRONLY);
  occupy(STDOUT_FILENO, O_RDONLY);
  occupy(STDERR_FILENO, O_WRONLY);
  std::ios::sync_with_stdio(false);
  return {std::cin, std::cout, std::cerr, STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO};
}

}  // namespace kelp::input::quill::tool
