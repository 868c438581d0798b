#ifndef KELP_INPUT_QUILL_TESTS_SCALE_TASKS_HPP
#define KELP_INPUT_QUILL_TESTS_SCALE_TASKS_HPP

#include <cstddef>
#include <functional>
#include <iosfwd>
#include <string>
#include <vector>

namespace kelp::input::quill {

/// Something the library does that is to cost twice as much where it is twice as large.
struct Task {
  std::string name;
  /// Large enough for what grows with the square of it to outweigh everything else.
  std::size_t size;
  /// Makes what is needed for a size, and gives what is to be measured, which is done once and
  /// returns whether it did what it is measured for.
  std::function<std::function<bool()>(std::size_t size)> prepare;
};

void PrintTo(const Task& task, std::ostream* out);

/// Reading texts of every shape; writing, copying, asking and changing large documents.
const std::vector<Task>& tasks();

}  // namespace kelp::input::quill

#endif  // KELP_INPUT_QUILL_TESTS_SCALE_TASKS_HPP
