#include "kelp/input/quill/lossless/read_text.hpp"

#include <gtest/gtest.h>

#include "support/comparison.hpp"
#include "support/printing.hpp"

namespace kelp::input::quill::lossless {

TEST(ReadText, HoldsTheTextAndWhatWasReadOfIt) {
  const std::string text = "#a\n\n0 1\r\n";
  const ReadText read = read_text(text);
  EXPECT_EQ(read.text, text);
  EXPECT_EQ(read.result, parse_string(text));
  EXPECT_EQ(read.lines, parse_lines(text).lines);
  EXPECT_EQ(content_of(read.lines[2], read.text), "0 1");
}

TEST(FindLine, FindsByRoleAndIndex) {
  const ReadText read = read_text("#a\n\n#b\n0 1\nXYZ\nXYZ p\nC 1\nC x\n");
  const std::vector<LineRecord>& lines = read.lines;
  EXPECT_EQ(find_line(lines, LineRole::Command, 0), 0U);
  EXPECT_EQ(find_line(lines, LineRole::Command, 1), 2U);
  EXPECT_EQ(find_line(lines, LineRole::Command, 2), std::nullopt);
  EXPECT_EQ(find_line(lines, LineRole::Command), std::nullopt);
  EXPECT_EQ(find_line(lines, LineRole::ChargeAndMultiplicity), 3U);
  EXPECT_EQ(find_line(lines, LineRole::XyzReference), 4U);
  EXPECT_EQ(find_line(lines, LineRole::XyzReference, 0), 5U);
  EXPECT_EQ(find_line(lines, LineRole::Atom, 0), std::nullopt);
  EXPECT_EQ(find_line(lines, LineRole::PostCommand, 0), 6U);
  EXPECT_EQ(find_line(lines, LineRole::Dropped), 7U);
}

}  // namespace kelp::input::quill::lossless
