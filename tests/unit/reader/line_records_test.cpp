#include "reader/line_records.hpp"

#include <gtest/gtest.h>

#include "kelp/core/text.hpp"
#include "support/comparison.hpp"
#include "support/printing.hpp"

namespace kelp::input::quill {
namespace {

TEST(LineRecords, SayWhereEveryLineIsAndNotYetWhatItMeans) {
  const std::string text = "#a\r\n\n0 1\nlast\r";
  const std::vector<LineRecord> expected = {
      {LineRole::Blank, std::nullopt, 0, 2, 2},
      {LineRole::Blank, std::nullopt, 4, 0, 1},
      {LineRole::Blank, std::nullopt, 5, 3, 1},
      {LineRole::Blank, std::nullopt, 9, 5, 0},
  };
  EXPECT_EQ(locate_lines(text, core::text::split_lines(text)), expected);
}

TEST(LineRecords, AreNoneOfAnEmptyText) { EXPECT_TRUE(locate_lines("", {}).empty()); }

}  // namespace
}  // namespace kelp::input::quill
