#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstddef>
#include <optional>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

#include "kelp/input/quill/lines.hpp"
#include "support/comparison.hpp"
#include "support/printing.hpp"

namespace kelp::input::quill {

namespace {

/// A role and an index.
struct Meaning {
  LineRole role = LineRole::Blank;
  std::optional<std::size_t> index = std::nullopt;

  bool operator==(const Meaning& other) const { return role == other.role && index == other.index; }
};

void PrintTo(const Meaning& meaning, std::ostream* out) {
  *out << "role " << static_cast<int>(meaning.role) << " index "
       << testing::PrintToString(meaning.index);
}

constexpr LineRole post = LineRole::PostCommand;
const Meaning blank{};
const Meaning charge{LineRole::ChargeAndMultiplicity};
const Meaning dropped{LineRole::Dropped};

Meaning command(std::size_t index) { return {LineRole::Command, index}; }
Meaning atom(std::size_t index) { return {LineRole::Atom, index}; }
Meaning reference(std::optional<std::size_t> index) { return {LineRole::XyzReference, index}; }
Meaning trajectory(std::optional<std::size_t> index) { return {LineRole::Trajectory, index}; }

struct Row {
  std::string_view name;
  std::string text;
  std::vector<Meaning> lines;
};

void PrintTo(const Row& row, std::ostream* out) { *out << testing::PrintToString(row.text); }

const Row rows[] = {
    {"AnEmptyTextHasNone", "", {}},
    {"BlankLinesOnly", "\n \t\r\n\r", {blank, blank, blank}},
    {"EverySection",
     "#opt\n#model = m1\n\n0 1\nO 0 0 0\n\nH 0 0 1\n\nB 1 2\nPOST out\nfree\n",
     {command(0),
      command(1),
      blank,
      charge,
      atom(0),
      blank,
      atom(1),
      blank,
      {post, 0},
      {post, 1},
      {post, 2}}},
    {"ALineWithoutAnEnd", "#opt", {command(0)}},
    {"EveryCommandWithAWarning",
     "#\n#opt(\n#opt() x\n# = 1\n#sp\n0 1\n",
     {command(0), command(1), command(2), command(3), command(4), charge}},
    {"ReferencesWithAndWithoutAPath",
     "XYZ\nXYZ a\n\nxyz\nXYZ b\nXYZ\n",
     {reference({}), reference(0), blank, reference({}), reference(1), reference({})}},
    {"OnlyReferencesWithoutAPath",
     "XYZ\n\nXYZ\nC 1",
     {reference({}), blank, reference({}), {post, 0}}},
    {"ReferencesBeforeATrajectory", "XYZ a\nXYZTRAJ t\n", {reference(0), {post, 0}}},
    {"ATrajectory", "XYZTRAJ t\nXYZTRAJ u\nXYZ b\n", {trajectory(0), {post, 0}, {post, 1}}},
    {"ATrajectoryWithoutAPath", "0 1\nXYZTRAJ\nXYZ\n", {charge, trajectory({}), {post, 0}}},
    {"DroppedLinesAmongThePostLines",
     "O 0 0 0\nB 1 x\nB 1 2\n\nC y\nD 1 2 3 4.5\nx\nS 1 2 3 4.5\n",
     {atom(0), dropped, {post, 0}, blank, dropped, dropped, {post, 1}, dropped}},
    {"AnUnknownElementIsAnAtom", "Xx 0 0 0\nA 1 2 3\n", {atom(0), atom(1)}},
    {"NoGeometry", "#opt\nB 1 2\n#opt\n", {command(0), {post, 0}, {post, 1}}},
    {"AChargeLineThenTwoNumbers", "0 1\n0 1", {charge, {post, 0}}},
    {"TwoNumbersThatAreNotIntegers", "0 1.0\n", {{post, 0}}},
};

class ParseLines : public testing::TestWithParam<Row> {};

TEST_P(ParseLines, SaysWhatEveryLineIs) {
  std::vector<Meaning> found;
  for (const LineRecord& line : parse_lines(GetParam().text).lines)
    found.push_back({line.role, line.index});
  EXPECT_EQ(found, GetParam().lines);
}

TEST_P(ParseLines, ReadsAsParseStringDoes) {
  EXPECT_EQ(parse_lines(GetParam().text).result, parse_string(GetParam().text));
}

TEST_P(ParseLines, CoversEveryByte) {
  std::size_t covered = 0;
  for (const LineRecord& line : parse_lines(GetParam().text).lines) {
    EXPECT_EQ(line.offset, covered);
    covered += line.length + line.terminator_length;
  }
  EXPECT_EQ(covered, GetParam().text.size());
}

INSTANTIATE_TEST_SUITE_P(Table, ParseLines, testing::ValuesIn(rows),
                         [](const auto& row) { return std::string(row.param.name); });

TEST(ParseLines, KeepsLineEndsApartFromContents) {
  const std::string text = "#a\r\n #b \n\r\nx\ry\r\r\nz\r";
  std::vector<std::string> contents;
  std::vector<std::size_t> terminators;
  for (const LineRecord& line : parse_lines(text).lines) {
    contents.push_back(text.substr(line.offset, line.length));
    terminators.push_back(line.terminator_length);
  }
  EXPECT_THAT(contents, testing::ElementsAre("#a", " #b ", "", "x\ry\r", "z\r"));
  EXPECT_THAT(terminators, testing::ElementsAre(2, 1, 2, 2, 0));
}

TEST(ParseLines, GivesTheLineOfAWarningByItsNumber) {
  const ParsedLines parsed = parse_lines("\n#opt(\n");
  ASSERT_EQ(parsed.result.warnings.front(), "Line 2: missing ')' in QUILL header command");
  EXPECT_EQ(parsed.lines[2 - 1], (LineRecord{LineRole::Command, 0, 1, 5, 1}));
}

}  // namespace

}  // namespace kelp::input::quill
