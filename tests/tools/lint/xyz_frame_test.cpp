#include "lint/xyz_frame.hpp"

#include <gtest/gtest.h>

#include <string>

namespace kelp::input::quill::lint {

namespace {

struct Row {
  std::string_view name;
  std::string content;
  std::optional<std::size_t> atoms;
};

void PrintTo(const Row& row, std::ostream* out) { *out << row.name; }

const Row rows[] = {
    {"OneFrame", "2\nhydrogen\nH 0 0 0\nH 0 0 0.741\n", 2},
    {"TwoFrames", "1\n\nHe 0 0 0\n1\n\nHe 0 0 1\n", 1},
    {"ElementNumbersAndMoreColumns", " 1 \n\n2 0 0 0 0.5 x\n", 1},
    {"AFrameWithoutALineEnd", "1\r\n\r\nHe 0 0 0", 1},
    {"NoAtoms", "0\n\n", std::nullopt},
    {"ANegativeNumber", "-1\n\n", std::nullopt},
    {"FewerAtomsThanItSays", "2\n\nHe 0 0 0\n", std::nullopt},
    {"ALineThatIsNoAtom", "2\n\nHe 0 0 0\nHe 0 0\n", std::nullopt},
    {"NoCount", "H 0 0 0\n", std::nullopt},
    {"Nothing", "", std::nullopt},
};

class XyzFrame : public testing::TestWithParam<Row> {};

TEST_P(XyzFrame, HasThisManyAtoms) {
  EXPECT_EQ(count_atoms_of_first_frame(GetParam().content), GetParam().atoms);
}

INSTANTIATE_TEST_SUITE_P(Table, XyzFrame, testing::ValuesIn(rows),
                         [](const auto& row) { return std::string(row.param.name); });

/// Returns the shortest beginning of a text after which nothing can change its first frame.
std::string_view whole_first_frame(std::string_view text) {
  std::size_t length = 0;
  while (length < text.size() && !has_whole_first_frame(text.substr(0, length))) ++length;
  return text.substr(0, length);
}

TEST(WholeFirstFrame, EndsWithTheLineOfItsLastAtom) {
  EXPECT_EQ(whole_first_frame("2\nhydrogen\nH 0 0 0\nH 0 0 0.741\n1\n\nHe 0 0 0\n"),
            "2\nhydrogen\nH 0 0 0\nH 0 0 0.741\n");
  EXPECT_EQ(whole_first_frame("1\r\n\r\nHe 0 0 0\r\n\r\n"), "1\r\n\r\nHe 0 0 0\r\n");
  EXPECT_EQ(whole_first_frame("H 0 0 0\nH 0 0 1\n"), "H 0 0 0\n");
  EXPECT_EQ(whole_first_frame("0\n\n\n"), "0\n");
  EXPECT_FALSE(has_whole_first_frame(""));
  EXPECT_FALSE(has_whole_first_frame("1\n"));
  EXPECT_FALSE(has_whole_first_frame("2\n\nHe 0 0 0\nHe 0 0 1"));
  EXPECT_FALSE(has_whole_first_frame("2147483647\n\nHe 0 0 0\n"));
}

}  // namespace

}  // namespace kelp::input::quill::lint
