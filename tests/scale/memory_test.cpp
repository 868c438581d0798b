// Twice the size takes about twice the memory, in about twice as many allocations.

#include <gtest/gtest.h>

#include <cstdint>
#include <functional>

#include "scale/counted_memory.hpp"
#include "scale/tasks.hpp"

namespace kelp::input::quill {
namespace {

struct Cost {
  std::int64_t peak_bytes;
  std::int64_t allocations;
};

Cost cost_of(const std::function<bool()>& work) {
  const MemoryCount memory;
  EXPECT_TRUE(work());
  return {memory.peak_bytes(), memory.allocations()};
}

class Memory : public testing::TestWithParam<Task> {};

TEST_P(Memory, GrowsInProportion) {
  constexpr std::int64_t few_bytes = 1000;
  constexpr std::int64_t few_allocations = 4;
  const Task& task = GetParam();
  const Cost once = cost_of(task.prepare(task.size));
  const Cost twice = cost_of(task.prepare(2 * task.size));
  EXPECT_LE(twice.peak_bytes, 2 * once.peak_bytes + once.peak_bytes / 100 + few_bytes)
      << once.peak_bytes << " for half";
  EXPECT_LE(twice.allocations, 2 * once.allocations + few_allocations)
      << once.allocations << " for half";
}

INSTANTIATE_TEST_SUITE_P(Of, Memory, testing::ValuesIn(tasks()),
                         [](const auto& task) { return task.param.name; });

}  // namespace
}  // namespace kelp::input::quill
