#include "quill-inp/batch/tally.hpp"

#include <gtest/gtest.h>

namespace kelp::input::quill::tool {
namespace {

TEST(Tally, CountsEachFileByItsCodeAndItsChange) {
  Tally tally;
  tally.add(ExitCode::Done, true);
  tally.add(ExitCode::Done, false);
  tally.add(ExitCode::No, false);
  tally.add(ExitCode::Trouble, false);
  tally.add(ExitCode::Trouble, true);
  EXPECT_EQ(tally.files, 5U);
  EXPECT_EQ(tally.changed, 2U);
  EXPECT_EQ(tally.without_match, 1U);
  EXPECT_EQ(tally.refused, 2U);
}

TEST(Tally, IsToldInWords) {
  const struct {
    Tally tally;
    const char* text;
  } rows[] = {
      {{10000, 37, 0, 2}, "10,000 files, 37 changed, 2 refused"},
      {{1, 0, 0, 0}, "1 file, 0 changed"},
      {{2, 1, 0, 0}, "2 files, 1 changed"},
      {{3, 0, 1, 0}, "3 files, 0 changed, 1 without a match"},
      {{1234567, 1000, 2000, 3000},
       "1,234,567 files, 1,000 changed, 2,000 without a match, 3,000 refused"},
  };
  for (const auto& row : rows) EXPECT_EQ(words(row.tally, "changed"), row.text);
}

TEST(Tally, PutsACommaBeforeEveryThreeDigits) {
  EXPECT_EQ(grouped(0), "0");
  EXPECT_EQ(grouped(999), "999");
  EXPECT_EQ(grouped(1000), "1,000");
  EXPECT_EQ(grouped(999999), "999,999");
  EXPECT_EQ(grouped(1000000), "1,000,000");
}

}  // namespace
}  // namespace kelp::input::quill::tool
