#include "kelp/input/quill/lossless/wording.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <ostream>

#include "kelp/input/quill/lossless/read_text.hpp"

namespace kelp::input::quill::lossless {

namespace {

struct Row {
  std::string_view name;
  std::string text;
  std::vector<std::string> lines;
};

void PrintTo(const Row& row, std::ostream* out) { *out << testing::PrintToString(row.text); }

const Row rows[] = {
    {"AnEmptyTextHasNoLines", "", {}},
    {"BlankLinesOnly", "\n \t\r\n\r", {"blank", "blank", "blank"}},
    {"EverySection",
     "#opt\n#model = m1\n\n0 1\nO 0 0 0\n\nH 0 0 1\n\nB 1 2\nPOST out\nfree\n",
     {"command 1", "command 2", "blank", "charge and multiplicity", "atom 1", "blank", "atom 2",
      "blank", "bond constraint", "post file", "raw text"}},
    {"EveryConstraint",
     "XYZ a\nC 1\nB 1 2\nA 1 2 3\nD 1 2 3 4\nS 1 2 1.5 3\nPOST p\nx",
     {"XYZ reference 1", "atom constraint", "bond constraint", "angle constraint",
      "dihedral constraint", "scan", "post file", "raw text"}},
    {"ACommandWithAWarningKeepsItsPlace",
     "#\n#opt(\n#opt() x\n# = 1\n#sp\n0 1\n",
     {"command 1", "command 2", "command 3", "command 4", "command 5", "charge and multiplicity"}},
    {"ReferencesWithAndWithoutAPath",
     "XYZ\nXYZ a\n\nxyz\nXYZ b\nXYZ\n",
     {"XYZ reference without a path", "XYZ reference 1", "blank", "XYZ reference without a path",
      "XYZ reference 2", "XYZ reference without a path"}},
    {"OnlyReferencesWithoutAPath",
     "XYZ\n\nXYZ\nC 1",
     {"XYZ reference without a path", "blank", "XYZ reference without a path", "atom constraint"}},
    {"ATrajectory",
     "XYZTRAJ t\nXYZTRAJ u\nXYZ b\n",
     {"trajectory reference", "raw text", "raw text"}},
    {"ATrajectoryWithoutAPath",
     "0 1\nXYZTRAJ\nXYZ\n",
     {"charge and multiplicity", "trajectory reference without a path", "raw text"}},
    {"DroppedLinesAnywhereAmongThePostLines",
     "O 0 0 0\nB 1 x\nB 1 2\n\nC y\nD 1 2 3 4.5\nx\nS 1 2 3 4.5\n",
     {"atom 1", "dropped", "bond constraint", "blank", "dropped", "dropped", "raw text",
      "dropped"}},
    {"AnUnknownElementIsAnAtom", "Xx 0 0 0\nA 1 2 3\n", {"atom 1", "atom 2"}},
    {"NoGeometry", "#opt\nB 1 2\n#opt\n", {"command 1", "bond constraint", "raw text"}},
    {"AChargeLineAloneThenTwoNumbers", "0 1\n0 1", {"charge and multiplicity", "raw text"}},
    {"NumbersAboveNine",
     "#1\n#2\n#3\n#4\n#5\n#6\n#7\n#8\n#9\n#10\nC x\nC y\nC 1\n",
     {"command 1", "command 2", "command 3", "command 4", "command 5", "command 6", "command 7",
      "command 8", "command 9", "command 10", "dropped", "dropped", "atom constraint"}},
};

class LineDescription : public testing::TestWithParam<Row> {};

TEST_P(LineDescription, SaysWhatEveryLineIs) {
  const ReadText read = read_text(GetParam().text);
  std::vector<std::string> described;
  for (const LineRecord& line : read.lines)
    described.push_back(describe({line.role, line.index}, read.result.input));
  EXPECT_EQ(described, GetParam().lines);
}

INSTANTIATE_TEST_SUITE_P(Table, LineDescription, testing::ValuesIn(rows),
                         [](const auto& row) { return std::string(row.param.name); });

}  // namespace

TEST(PostLineNoun, IsKnownForAKindOutsideTheEnumeration) {
  EXPECT_EQ(noun_of(PostCommandKind{7}), "post-processing line of unknown kind");
}

}  // namespace kelp::input::quill::lossless
