// Does every task at its size and at twice that, for callgrind to count the instructions of each;
// see check_instructions.sh.

#include <valgrind/callgrind.h>

#include <cstddef>
#include <cstdio>
#include <functional>
#include <string>

#include "scale/tasks.hpp"

namespace kelp::input::quill {
namespace {

/// Leaves the count in a file of callgrind's that contains the label.
bool is_done_while_counted(const std::function<bool()>& work, const std::string& label) {
  CALLGRIND_START_INSTRUMENTATION;
  CALLGRIND_ZERO_STATS;
  const bool is_done = work();
  CALLGRIND_DUMP_STATS_AT(label.c_str());
  CALLGRIND_STOP_INSTRUMENTATION;
  return is_done;
}

int count_tasks() {
  if (RUNNING_ON_VALGRIND == 0) {
    std::fputs("only callgrind counts what this program does\n", stderr);
    return 2;
  }
  for (const Task& task : tasks()) {
    for (const std::size_t size : {task.size, 2 * task.size}) {
      if (is_done_while_counted(task.prepare(size), task.name + ' ' + std::to_string(size)))
        continue;
      std::fprintf(stderr, "%s does not do what it is to do\n", task.name.c_str());
      return 1;
    }
  }
  return 0;
}

}  // namespace
}  // namespace kelp::input::quill

int main() { return kelp::input::quill::count_tasks(); }
