#include "edit_support/line_account.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <stdexcept>

namespace kelp::input::quill::edit_support {

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

std::vector<AccountedLine> account_of(const std::string& text) {
  return account_for_lines(text, parse_string(text));
}

class LineAccount : public testing::TestWithParam<Row> {};

TEST_P(LineAccount, SaysWhatEveryLineIs) {
  const ParseResult result = parse_string(GetParam().text);
  std::vector<std::string> described;
  for (const AccountedLine& line : account_for_lines(GetParam().text, result))
    described.push_back(describe(line, result.input));
  EXPECT_EQ(described, GetParam().lines);
}

TEST_P(LineAccount, NumbersTheLinesAndCoversEveryByte) {
  std::string joined;
  std::size_t number = 0;
  for (const AccountedLine& line : account_of(GetParam().text)) {
    EXPECT_EQ(line.number, ++number);
    EXPECT_EQ(line.offset, joined.size());
    EXPECT_EQ(line.content(GetParam().text), line.whole(GetParam().text).substr(0, line.length));
    joined += line.whole(GetParam().text);
  }
  EXPECT_EQ(joined, GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(Table, LineAccount, testing::ValuesIn(rows),
                         [](const auto& row) { return std::string(row.param.name); });

}  // namespace

TEST(LineAccount, KeepsLineEndsApartFromContents) {
  const std::string text = "#a\r\n #b \n\r\nx\ry\r\r\nz\r";
  std::vector<std::string> contents;
  std::vector<std::size_t> terminators;
  for (const AccountedLine& line : account_of(text)) {
    contents.emplace_back(line.content(text));
    terminators.push_back(line.terminator_length);
  }
  EXPECT_THAT(contents, testing::ElementsAre("#a", " #b ", "", "x\ry\r", "z\r"));
  EXPECT_THAT(terminators, testing::ElementsAre(2, 1, 2, 2, 0));
}

TEST(LineAccount, GivesTheIndexIntoTheDocument) {
  const std::string text = "#a\n#b\n0 1\nXYZ\nXYZ p\nC x\nC 1\nC 2\n";
  std::vector<std::optional<std::size_t>> indices;
  for (const AccountedLine& line : account_of(text)) indices.push_back(line.index);
  const std::optional<std::size_t> none;
  EXPECT_THAT(indices, testing::ElementsAre(0, 1, none, none, 0, none, 0, 1));
}

TEST(LineAccount, GivesATrajectoryThatHasAPathItsIndex) {
  EXPECT_EQ(account_of("XYZTRAJ t")[0].index, 0U);
  EXPECT_EQ(account_of("XYZTRAJ")[0].index, std::nullopt);
}

TEST(LineAccount, RefusesTheResultOfATextWithMoreOrLess) {
  const char* const texts[] = {"#opt",         "0 1",          "O 0 0 0",    "XYZ a",
                               "XYZ",          "XYZTRAJ",      "C 1",        "C x",
                               "0 1\nXYZTRAJ", "XYZ a\nXYZ b", "XYZ a\nXYZ", "O 0 0 0\nC x"};
  for (const std::string text : texts) {
    const ParseResult result = parse_string(text);
    EXPECT_NO_THROW(account_for_lines(text + "\n\n", result));
    EXPECT_THROW(account_for_lines("", result), std::invalid_argument) << text;
    EXPECT_THROW(account_for_lines(text + "\nC 1", result), std::invalid_argument) << text;
    EXPECT_THROW(account_for_lines(text.substr(0, text.find('\n')), parse_string(text + "\nC x")),
                 std::invalid_argument)
        << text;
  }
}

TEST(LineAccount, SaysWhichWayTheResultDoesNotFit) {
  const auto complaint = [](const std::string& text, const std::string& other) -> std::string {
    try {
      account_for_lines(text, parse_string(other));
    } catch (const std::invalid_argument& error) {
      return error.what();
    }
    return "";
  };
  EXPECT_EQ(complaint("C 1\nC 2", "C 1"), "the result has fewer parts than the text has lines");
  EXPECT_EQ(complaint("C 1", "C 1\nC 2"), "the result has more parts than the text has lines");
}

TEST(LineAccount, DoesNotTakeAnotherWarningForOneItCounts) {
  // A result that nobody reads from a text, whose warnings come close to those that count.
  ParseResult result = parse_string("XYZ a\nx\n");
  result.warnings = {"Line 2: ignored unrecognized QUILL post-processing lines",
                     "line 2: ignored unrecognized QUILL post-processing line",
                     "Line 2 : ignored unrecognized QUILL post-processing line",
                     "Line : XYZ reference has no file path",
                     "Line 1: XYZTRAJ reference has no file path",
                     "Line 1; XYZ reference has no file path",
                     "Line 1",
                     ""};
  const std::vector<AccountedLine> account = account_for_lines("XYZ a\nx\n", result);
  EXPECT_EQ(describe(account[0], result.input), "XYZ reference 1");
  EXPECT_EQ(describe(account[1], result.input), "raw text");
}

TEST(FindLine, FindsByRoleAndIndex) {
  const std::vector<AccountedLine> account = account_of("#a\n\n#b\n0 1\nXYZ\nXYZ p\nC 1\nC x\n");
  EXPECT_EQ(find_line(account, LineRole::Command, 0), 0U);
  EXPECT_EQ(find_line(account, LineRole::Command, 1), 2U);
  EXPECT_EQ(find_line(account, LineRole::Command, 2), std::nullopt);
  EXPECT_EQ(find_line(account, LineRole::Command), std::nullopt);
  EXPECT_EQ(find_line(account, LineRole::ChargeAndMultiplicity), 3U);
  EXPECT_EQ(find_line(account, LineRole::XyzReference), 4U);
  EXPECT_EQ(find_line(account, LineRole::XyzReference, 0), 5U);
  EXPECT_EQ(find_line(account, LineRole::Atom, 0), std::nullopt);
  EXPECT_EQ(find_line(account, LineRole::PostCommand, 0), 6U);
  EXPECT_EQ(find_line(account, LineRole::Dropped), 7U);
}

TEST(DescribePostCommandKind, KnowsAKindOutsideTheEnumeration) {
  EXPECT_EQ(describe(PostCommandKind{7}), "post-processing line of unknown kind");
}

}  // namespace kelp::input::quill::edit_support
