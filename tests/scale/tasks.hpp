#ifndef KELP_INPUT_QUILL_TESTS_SCALE_TASKS_HPP
#define KELP_INPUT_QUILL_TESTS_SCALE_TASKS_HPP

#include <cstddef>
#include <functional>
#include <iosfwd>
#include <string>
#include <vector>

namespace kelp::input::quill {

/// Some work of the library that must cost only twice as much for twice the size.
struct Task {
  std::string name;
  /// So large that a quadratic cost would be larger than all other costs.
  std::size_t size;
  /// Makes what is needed for a size, and returns the work to be measured, which is done once and
  /// returns whether its result was right.
  std::function<std::function<bool()>(std::size_t size)> prepare;
};

void PrintTo(const Task& task, std::ostream* out);

/// Reading texts of every shape; writing, copying, searching and changing large documents.
const std::vector<Task>& tasks();

}  // namespace kelp::input::quill

#endif  // KELP_INPUT_QUILL_TESTS_SCALE_TASKS_HPP
