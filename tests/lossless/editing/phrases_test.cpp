#include "editing/phrases.hpp"

#include <gtest/gtest.h>

namespace kelp::input::quill::lossless {

TEST(NumberText, IsShortestOrRounded) {
  EXPECT_EQ(shortest_text(180.0), "180");
  EXPECT_EQ(shortest_text(0.1), "0.1");
  EXPECT_EQ(shortest_text(-0.0), "-0");
  EXPECT_EQ(shortest_text(-2.2250738585072014e-308), "-2.2250738585072014e-308");
  EXPECT_EQ(rounded_text(4.9999e-7), "5e-07");
  EXPECT_EQ(rounded_text(0.123), "0.12");
}

TEST(JoinedNumbers, HaveSingleBlanksBetweenThem) {
  EXPECT_EQ(joined({}), "");
  EXPECT_EQ(joined({7}), "7");
  EXPECT_EQ(joined({1, -2, 3}), "1 -2 3");
}

}  // namespace kelp::input::quill::lossless
