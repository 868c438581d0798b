// Whatever chance asks of the library survives that each of its allocations fails in turn, and what
// does not survive it is noticed.

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <new>
#include <random>
#include <string>

#include "properties/allocation_faults.hpp"
#include "properties/holds.hpp"
#include "support/failing_allocator.hpp"

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

std::string violated_by(const EditOperation& edit) {
  return holds([&] { edit_survives_fault(edit, QuillInput(), 0, "bytes"); }).message();
}

TEST(AnEditThatRunsOutOfMemory, MayNotLeaveHalfOfItsWork) {
  const EditOperation half_done = change(
      [](InputEditor& editor) {
        editor.set_flag("a");
        throw std::bad_alloc();
      },
      [](QuillInput& document) {
        document.commands = {{"a"}, {"b"}};
      });
  EXPECT_EQ(violated_by(half_done),
            "does not hold: an edit that runs out of memory leaves what it may\n  for \"bytes\"");
}

TEST(AnEdit, MayNotLoseABlock) {
  // Then no program can tell its own lost blocks from those of the library.
  if (!failed_copies_are_freed()) GTEST_SKIP() << "this standard library loses blocks itself";
  std::unique_ptr<int> block;
  const EditOperation losing =
      change([&](InputEditor&) { block = std::make_unique<int>(); }, [](QuillInput&) {});
  EXPECT_EQ(violated_by(losing), "does not hold: no block is lost\n  for \"bytes\"");
}

}  // namespace
}  // namespace kelp::input::quill
