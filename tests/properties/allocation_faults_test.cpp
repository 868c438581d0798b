// Whatever chance asks of the library survives that each of its allocations fails in turn.

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <random>
#include <string>

#include "properties/allocation_faults.hpp"
#include "properties/holds.hpp"

namespace kelp::input::quill {
namespace {

/// An operation of one of the four kinds, with random bytes for its work.
std::string random_operation(char kind, std::mt19937& random) {
  std::string bytes(1, kind);
  for (std::size_t size = random() % 120; size > 0; --size)
    bytes += static_cast<char>(static_cast<unsigned char>(random()));
  return bytes;
}

class EveryAllocation : public testing::TestWithParam<int> {};

TEST_P(EveryAllocation, MayFail) {
  std::mt19937 random(20240523);
  std::uint64_t most = 0;
  for (int i = 0; i < 400; ++i) {
    const std::string bytes = random_operation(static_cast<char>(GetParam()), random);
    std::uint64_t failing = 1;
    bool has_succeeded = false;
    while (!has_succeeded) {
      ASSERT_TRUE(holds([&] { has_succeeded = survives_fault(bytes, failing); }));
      ++failing;
    }
    most = std::max(most, failing);
  }
  EXPECT_GT(most, 4U) << "the operations were too small to fail";
}

INSTANTIATE_TEST_SUITE_P(OfKind, EveryAllocation, testing::Range(0, 4),
                         testing::PrintToStringParamName());

}  // namespace
}  // namespace kelp::input::quill
