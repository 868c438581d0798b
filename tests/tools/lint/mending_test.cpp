#include "lint/mending.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace kelp::input::quill::lint {

bool operator==(const ByteEdit& left, const ByteEdit& right) {
  return left.range == right.range && left.replacement == right.replacement;
}

namespace {

const auto every = [](const Finding&) { return true; };

struct Row {
  std::string_view name;
  std::string text;
  std::string mended;
  std::size_t count;
};

void PrintTo(const Row& row, std::ostream* out) { *out << row.name; }

const Row rows[] = {
    {"NothingToMend", "#opt\n0 1\nHe 0 0 0\n", "#opt\n0 1\nHe 0 0 0\n", 0},
    {"AByteOrderMark", "\xEF\xBB\xBF#opt\n0 1\nHe 0 0 0\n", "#opt\n0 1\nHe 0 0 0\n", 1},
    {"CarriageReturns", "#opt\r0 1\rHe 0 0 0\r", "#opt\n0 1\nHe 0 0 0\n", 1},
    {"CarriageReturnsBeforeADosLineEnd", "#opt\r0 1\r\nHe 0 0 0\r\n", "#opt\n0 1\r\nHe 0 0 0\r\n",
     1},
    {"DecimalCommasOfAllAtoms", "#opt\n0 1\nH 0 0 0\nH 0,5 0 1,5\n\nH 0 0 3\nH 0 0 -4,5\nB 1 2\n",
     "#opt\n0 1\nH 0 0 0\nH 0.5 0 1.5\n\nH 0 0 3\nH 0 0 -4.5\nB 1 2\n", 1},
    {"CommasOfAScanAreLeftAlone", "#opt\n0 1\nH 0 0 0\nH 0 0 0.741\nS 1 2 1,5 10\n",
     "#opt\n0 1\nH 0 0 0\nH 0 0 0.741\nS 1 2 1,5 10\n", 0},
    {"CommasInALineOfFiveWordsAreLeftAlone", "#opt\n0 1\nH 0 0 0\nH 0 0 1,5 x\n",
     "#opt\n0 1\nH 0 0 0\nH 0 0 1,5 x\n", 0},
    {"ACommaBesideAPointIsLeftAlone", "#opt\n0 1\nH 0 0 0\nH 0 0 1,000.5\n",
     "#opt\n0 1\nH 0 0 0\nH 0 0 1,000.5\n", 0},
    {"AUnicodeMinusInAnAtom", "#opt\n0 1\nH 0 0 0\nH 0 0 \u22121,5\n",
     "#opt\n0 1\nH 0 0 0\nH 0 0 -1.5\n", 1},
    {"ANoBreakSpaceInAnAtom", "#opt\n0 1\nH\u00A00\u00A00 0\n", "#opt\n0 1\nH 0 0 0\n", 1},
    {"AUnicodeMinusInTheCharge", "#opt\n\u22121 1\nF 0 0 0\n", "#opt\n-1 1\nF 0 0 0\n", 1},
    {"AChargeAndThenDecimalCommas", "#opt\n\u22121 1\nF 0 0 0,5\n", "#opt\n-1 1\nF 0 0 0.5\n", 1},
    {"AUnicodeMinusInADroppedLine", "#opt\n0 1\nH 0 0 0\nH 0 0 3\nS 1 2 \u22121.5 10\n",
     "#opt\n0 1\nH 0 0 0\nH 0 0 3\nS 1 2 -1.5 10\n", 1},
    {"ANoBreakSpaceAfterAKeyword", "#opt\n0 1\nH 0 0 0\nH 0 0 3\nB\u00A01 2\n",
     "#opt\n0 1\nH 0 0 0\nH 0 0 3\nB 1 2\n", 1},
    {"ANoBreakSpaceThatWouldMakeAnAtom", "#opt\n0 1\nH 0.0 0 0\nH 0.0 0 3\nA\u00A01 2 3\n",
     "#opt\n0 1\nH 0.0 0 0\nH 0.0 0 3\nA\u00A01 2 3\n", 0},
    {"ANoBreakSpaceInTextIsLeftAlone", "#opt\n0 1\nHe 0 0 0\nsome\u00A0text\n",
     "#opt\n0 1\nHe 0 0 0\nsome\u00A0text\n", 0},
    {"ANoBreakSpaceAroundAName", "#\u00A0opt\u00A0(tight)\n0 1\nHe 0 0 0\n",
     "# opt (tight)\n0 1\nHe 0 0 0\n", 1},
    {"ANoBreakSpaceInsideANameIsLeftAlone", "#opt\n#a\u00A0b\n0 1\nHe 0 0 0\n",
     "#opt\n#a\u00A0b\n0 1\nHe 0 0 0\n", 0},
    {"TypographicQuotes", "#opt(a=\u201Cb, c\u201D, d=\u2018e\u2019)\n0 1\nHe 0 0 0\n",
     "#opt(a=\"b, c\", d='e')\n0 1\nHe 0 0 0\n", 2},
    {"ATypographicQuoteAroundAQuoteIsLeftAlone", "#opt\n#a = \u201Cb\"c\u201D\n0 1\nHe 0 0 0\n",
     "#opt\n#a = \u201Cb\"c\u201D\n0 1\nHe 0 0 0\n", 0},
    {"ANumberInAValue", "#opt(a=\u22121)\n#b = \u22120.5\n0 1\nHe 0 0 0\n",
     "#opt(a=-1)\n#b = -0.5\n0 1\nHe 0 0 0\n", 2},
    {"AMendThatIsOnlyOffered", "#opt\n#modle = a\n0 1\nHe 0 0 0\n",
     "#opt\n#modle = a\n0 1\nHe 0 0 0\n", 0},
    {"OneMendAfterAnother", "\xEF\xBB\xBF#opt\r0 1\rH 0 0 0,5\r", "#opt\n0 1\nH 0 0 0.5\n", 3},
};

class Mending : public testing::TestWithParam<Row> {};

TEST_P(Mending, ChangesTheseBytes) {
  const MendedText once = mend(lossless::read_text(GetParam().text), Options(), every);
  EXPECT_EQ(once.read.text, GetParam().mended);
  EXPECT_EQ(once.count, GetParam().count);
  const MendedText twice = mend(once.read, Options(), every);
  EXPECT_EQ(twice.read.text, once.read.text);
  EXPECT_EQ(twice.count, 0U);
}

INSTANTIATE_TEST_SUITE_P(Table, Mending, testing::ValuesIn(rows),
                         [](const auto& row) { return std::string(row.param.name); });

TEST(MendingOfSome, LeavesTheOthersAlone) {
  const auto is_number = [](const Finding& finding) { return finding.code == "QL217"; };
  EXPECT_EQ(mend(lossless::read_text("#opt(a=\u22121, b=\u2018c\u2019)\n0 1\nHe 0 0 0\n"),
                 Options(), is_number)
                .read.text,
            "#opt(a=-1, b=\u2018c\u2019)\n0 1\nHe 0 0 0\n");
}

Finding finding_with(std::vector<ByteEdit> edits, bool is_safe = true) {
  return {{}, {}, {}, Mend{std::move(edits), is_safe}};
}

TEST(SafeEdits, AreSortedAndThoseThatTouchAreLeftOutWhole) {
  std::size_t count = 0;
  const std::vector<ByteEdit> edits =
      safe_edits({finding_with({{{10, 2}, "a"}}), finding_with({{{4, 2}, "b"}}),
                  finding_with({{{20, 1}, "c"}, {{11, 1}, "d"}}), finding_with({{{6, 4}, "e"}}),
                  finding_with({{{12, 0}, "f"}}), finding_with({{{12, 0}, "g"}}),
                  finding_with({{{30, 1}, "h"}}, false), finding_with({{{9, 2}, "i"}})},
                 count);
  EXPECT_THAT(edits, testing::ElementsAre(ByteEdit{{4, 2}, "b"}, ByteEdit{{6, 4}, "e"},
                                          ByteEdit{{10, 2}, "a"}, ByteEdit{{12, 0}, "f"}));
  EXPECT_EQ(count, 4U);
}

}  // namespace

}  // namespace kelp::input::quill::lint
