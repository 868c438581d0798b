#include "quill-inp/batch/progress_line.hpp"

#include <gtest/gtest.h>

#include <sstream>

namespace kelp::input::quill::tool {
namespace {

using std::chrono::milliseconds;

TEST(ProgressLine, IsShownAfterASecondAndTenTimesInEachOneAfterIt) {
  std::ostringstream stream;
  const ProgressLine::Time start{};
  ProgressLine line(stream, 12000, start);
  line.show(1, start + milliseconds(999));
  EXPECT_FALSE(line.was_shown());
  line.show(1000, start + milliseconds(1000));
  line.show(1001, start + milliseconds(1099));
  line.show(1002, start + milliseconds(1100));
  EXPECT_EQ(stream.str(), "\r\x1b[K1,000 of 12,000 files\r\x1b[K1,002 of 12,000 files");
  EXPECT_TRUE(line.was_shown());
}

TEST(ProgressLine, IsRemovedOnce) {
  std::ostringstream stream;
  const ProgressLine::Time start{};
  ProgressLine line(stream, 2, start);
  line.clear();
  EXPECT_EQ(stream.str(), "");
  line.show(1, start + milliseconds(2000));
  line.clear();
  line.clear();
  EXPECT_EQ(stream.str(), "\r\x1b[K1 of 2 files\r\x1b[K");
  EXPECT_TRUE(line.was_shown());
}

}  // namespace
}  // namespace kelp::input::quill::tool
