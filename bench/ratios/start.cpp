#include <spawn.h>
#include <sys/wait.h>

#include <string>
#include <vector>

#include "ratios/ratios.hpp"

namespace kelp::input::quill::bench {

namespace {

/// Runs a program that prints nothing, and waits for its end.
void run_program(std::vector<std::string> words) {
  std::vector<char*> arguments;
  for (std::string& word : words) arguments.push_back(word.data());
  arguments.push_back(nullptr);
  char* const environment[] = {nullptr};
  pid_t child = -1;
  int state = -1;
  const bool has_ended = posix_spawn(&child, arguments.front(), nullptr, nullptr, arguments.data(),
                                     environment) == 0 &&
                         waitpid(child, &state, 0) == child;
  require_same(has_ended && state == 0, "start of " + words.front());
}

}  // namespace

void add_start_ratios(RatioTable& table) {
  const Work check_small_file = [] {
    run_program({KELP_QUILL_INP_PROGRAM, "fmt", "--check",
                 KELP_QUILL_INP_EXAMPLE_INPUTS "/water_optimisation.qin"});
  };
  table.compare_elapsed(
      "start of quill-inp : true", check_small_file, [] { run_program({"/bin/true"}); }, 10.0);
}

}  // namespace kelp::input::quill::bench
