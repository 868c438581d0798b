#include "quill-inp/terminal.hpp"

#include <unistd.h>

#include <cstdlib>
#include <iostream>
#include <string_view>

namespace kelp::input::quill::tool {

namespace {

std::string_view environment_variable(const char* name) {
  // The program has one thread, and nothing in it changes the environment.
  const char* value = std::getenv(name);  // NOLINT(concurrency-mt-unsafe)
  return value == nullptr ? std::string_view() : std::string_view(value);
}

}  // namespace

bool is_terminal(const std::ostream& stream) {
  if (&stream == &std::cout) return isatty(STDOUT_FILENO) == 1;
  if (&stream == &std::cerr) return isatty(STDERR_FILENO) == 1;
  return false;
}

bool wants_color(ColorMode mode, const std::ostream& stream) {
  if (mode != ColorMode::Auto) return mode == ColorMode::Always;
  return is_terminal(stream) && environment_variable("NO_COLOR").empty() &&
         environment_variable("TERM") != "dumb";
}

}  // namespace kelp::input::quill::tool
