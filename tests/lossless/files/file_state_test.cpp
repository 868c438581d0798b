#include <gtest/gtest.h>

#include <string>

#include "files/file_state.hpp"

namespace kelp::input::quill::lossless {
namespace {

/// One row of a table: what another program did to a file, as its state tells.
struct StateRow {
  std::string name;
  void (*change)(struct stat& state);
  bool is_same = false;
};

class SameState : public testing::TestWithParam<StateRow> {};

TEST_P(SameState, IsThatOfTheSameFileWithTheSameContent) {
  struct stat state {};
  state.st_dev = 1;
  state.st_ino = 2;
  state.st_size = 3;
  state.st_mtim = {4, 5};
  state.st_ctim = {6, 7};
  struct stat other = state;
  GetParam().change(other);
  EXPECT_EQ(is_same_state(state, other), GetParam().is_same);
  EXPECT_EQ(is_same_state(other, state), GetParam().is_same);
}

INSTANTIATE_TEST_SUITE_P(
    Table, SameState,
    testing::Values(
        StateRow{"Nothing", [](struct stat&) {}, true},
        StateRow{"Read",
                 [](struct stat& state) {
                   state.st_atim = {8, 9};
                 },
                 true},
        StateRow{"OtherDevice", [](struct stat& state) { ++state.st_dev; }},
        StateRow{"OtherInode", [](struct stat& state) { ++state.st_ino; }},
        StateRow{"OtherSize", [](struct stat& state) { ++state.st_size; }},
        StateRow{"OtherSecond", [](struct stat& state) { ++state.st_mtim.tv_sec; }},
        StateRow{"OtherNanosecond", [](struct stat& state) { ++state.st_mtim.tv_nsec; }},
        StateRow{"OtherSecondOfTheState", [](struct stat& state) { ++state.st_ctim.tv_sec; }},
        StateRow{"OtherNanosecondOfTheState", [](struct stat& state) { ++state.st_ctim.tv_nsec; }}),
    [](const auto& row) { return row.param.name; });

}  // namespace
}  // namespace kelp::input::quill::lossless
