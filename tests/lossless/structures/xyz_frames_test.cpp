#include "kelp/input/quill/lossless/xyz_frames.hpp"

#include <gtest/gtest.h>

#include <cstddef>
#include <limits>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "kelp/input/quill/lossless/wording.hpp"
#include "support/comparison.hpp"
#include "support/printing.hpp"

namespace kelp::input::quill::lossless {
namespace {

struct Row {
  std::string_view name;
  std::string_view text;
  std::vector<AtomRecord> atoms;
};

class XyzFile : public testing::TestWithParam<Row> {};

const AtomRecord helium = {"He", 0.0, 0.5, -1.25};
const AtomRecord neon = {"Ne", 1.0, 2.0, 3.0};

const Row rows[] = {
    {"OneAtom", "1\na comment\nHe 0 0.5 -1.25\n", {helium}},
    {"TwoAtoms", "2\n\nHe 0 0.5 -1.25\nNe 1 2 3\n", {helium, neon}},
    {"NoLineEndAtTheEnd", "1\n\nHe 0 0.5 -1.25", {helium}},
    {"DosLineEnds", "1\r\n\r\nHe 0 0.5 -1.25\r\n", {helium}},
    {"BlanksAroundTheCount", " \t1 \n\nHe 0 0.5 -1.25\n", {helium}},
    {"TabsAndBlanks", "1\n\n\tHe\t0   0.5\t-1.25 \n", {helium}},
    {"FortranExponents", "1\n\nHe 0 5d-1 -1.25D0\n", {helium}},
    {"SymbolsInAnyLetterCase", "2\n\nHE 0 0.5 -1.25\nne 1 2 3\n", {helium, neon}},
    {"SymbolsOfTheFirstAndTheLastLetters",
     "2\n\nAz 0 0.5 -1.25\nzA 1 2 3\n",
     {{"Az", 0.0, 0.5, -1.25}, {"Za", 1.0, 2.0, 3.0}}},
    {"FurtherColumnsArePassedOver", "1\n\nHe 0 0.5 -1.25 0.3 text\n", {helium}},
    {"BlankLinesAfterTheAtoms", "1\n\nHe 0 0.5 -1.25\n\n \t\n", {helium}},
    {"ANumberAsComment", "1\n7\nHe 0 0.5 -1.25\n", {helium}},
};

TEST_P(XyzFile, GivesItsAtoms) {
  const XyzReading reading = read_only_xyz_frame(GetParam().text);
  ASSERT_EQ(reading.frames.size(), 1U);
  EXPECT_EQ(reading.frames[0].atoms, GetParam().atoms);
  EXPECT_EQ(reading.frames[0].first_atom_line, 3U);
  EXPECT_FALSE(reading.problem);
}

INSTANTIATE_TEST_SUITE_P(Table, XyzFile, testing::ValuesIn(rows),
                         [](const auto& row) { return std::string(row.param.name); });

struct BadRow {
  std::string_view name;
  std::string_view text;
  XyzProblem problem;
  std::string_view in_words;
};

class BadXyzFile : public testing::TestWithParam<BadRow> {};

using Kind = XyzProblem::Kind;

constexpr std::string_view no_count = "an XYZ file begins with the number of its atoms, 1 or more";
constexpr std::string_view no_atom = "expected an atom, a symbol and three coordinates";

XyzProblem no_atom_in(std::size_t line) { return {Kind::NoAtom, line}; }

XyzProblem too_few_atoms(std::size_t line, std::size_t found, std::size_t wanted) {
  return {Kind::TooFewAtoms, line, found, wanted};
}

const BadRow bad_rows[] = {
    {"NoText", "", {Kind::NoCount, 1}, no_count},
    {"NoCount", "He 0 0 0\n", {Kind::NoCount, 1}, no_count},
    {"TwoCounts", "1 1\n\nHe 0 0 0\n", {Kind::NoCount, 1}, no_count},
    {"NoAtoms", "0\n\n", {Kind::NoCount, 1}, no_count},
    {"ANegativeCount", "-1\n\n", {Kind::NoCount, 1}, no_count},
    {"ABlankLineFirst", "\n1\n\nHe 0 0 0\n", {Kind::NoCount, 1}, no_count},
    {"TheCountAlone", "2", too_few_atoms(1, 0, 2), "has 0 atoms instead of 2"},
    {"TheCountAndTheComment", "2\n\n", too_few_atoms(1, 0, 2), "has 0 atoms instead of 2"},
    {"OneAtomOfTwo", "2\n\nHe 0 0 0\n", too_few_atoms(1, 1, 2), "has 1 atom instead of 2"},
    {"HugeCount", "2147483647\n\nHe 0 0 0\n", too_few_atoms(1, 1, 2147483647),
     "has 1 atom instead of 2147483647"},
    {"TooFewColumns", "1\n\nHe 0 0\n", no_atom_in(3), no_atom},
    {"NoNumberForX", "1\n\nHe a 0 0\n", no_atom_in(3), no_atom},
    {"NoNumberForY", "1\n\nHe 0 a 0\n", no_atom_in(3), no_atom},
    {"NoNumberForZ", "1\n\nHe 0 0 a\n", no_atom_in(3), no_atom},
    {"AtomicNumberForASymbol", "1\n\n2 0 0 0\n", no_atom_in(3), no_atom},
    {"SymbolWithADigit", "1\n\nHe1 0 0 0\n", no_atom_in(3), no_atom},
    {"SymbolWithTheCharacterBeforeA", "1\n\nH@ 0 0 0\n", no_atom_in(3), no_atom},
    {"SymbolWithTheCharacterAfterZ", "1\n\nH[ 0 0 0\n", no_atom_in(3), no_atom},
    {"SymbolWithTheCharacterBeforeSmallA", "1\n\nH` 0 0 0\n", no_atom_in(3), no_atom},
    {"SymbolWithTheCharacterAfterSmallZ", "1\n\nH{ 0 0 0\n", no_atom_in(3), no_atom},
    {"BlankLineBetweenAtoms", "2\n\nHe 0 0 0\n\nHe 0 0 1\n", no_atom_in(4), no_atom},
    {"EmptyLineForAnAtom", "1\n\n\n", no_atom_in(3), no_atom},
    {"ASecondStructure",
     "1\n\nHe 0 0 0\n1\n\nHe 0 0 1\n",
     {Kind::TextAfterEnd, 4},
     "more text after the last atom"},
    {"TextAfterABlankLine",
     "1\n\nHe 0 0 0\n \nx",
     {Kind::TextAfterEnd, 5},
     "more text after the last atom"},
};

void expect_problem(const XyzReading& reading, const XyzProblem& expected) {
  ASSERT_TRUE(reading.problem);
  const XyzProblem& problem = *reading.problem;
  EXPECT_EQ(problem.kind, expected.kind);
  EXPECT_EQ(problem.line, expected.line);
  EXPECT_EQ(problem.found, expected.found);
  EXPECT_EQ(problem.wanted, expected.wanted);
  EXPECT_EQ(problem.frame, expected.frame);
}

TEST_P(BadXyzFile, HasThisProblem) {
  expect_problem(read_only_xyz_frame(GetParam().text), GetParam().problem);
  EXPECT_EQ(words(GetParam().problem), GetParam().in_words);
}

INSTANTIATE_TEST_SUITE_P(Table, BadXyzFile, testing::ValuesIn(bad_rows),
                         [](const auto& row) { return std::string(row.param.name); });

constexpr std::string_view three_structures =
    "1\nfirst\nHe 0 0 0\n\n2\nsecond\nH 0 0 1\nH 0 0 2\n1\nthird\nHe 0 0 3\n\n";

TEST(XyzTrajectory, GivesTheStructureThatIsAskedFor) {
  struct Expected {
    int frame;
    std::vector<AtomRecord> atoms;
    std::string comment;
    std::size_t first_line;
  };
  const std::vector<Expected> all = {
      {1, {{"He", 0, 0, 0}}, "first", 3},
      {2, {{"H", 0, 0, 1}, {"H", 0, 0, 2}}, "second", 7},
      {3, {{"He", 0, 0, 3}}, "third", 11},
      {-1, {{"He", 0, 0, 3}}, "third", 11},
      {-2, {{"H", 0, 0, 1}, {"H", 0, 0, 2}}, "second", 7},
      {-3, {{"He", 0, 0, 0}}, "first", 3},
  };
  for (const Expected& expected : all) {
    const XyzReading reading = read_xyz_frame(three_structures, expected.frame);
    EXPECT_FALSE(reading.problem) << expected.frame;
    ASSERT_EQ(reading.frames.size(), 1U) << expected.frame;
    const XyzFrame& found = reading.frames.front();
    EXPECT_EQ(found.atoms, expected.atoms) << expected.frame;
    EXPECT_EQ(found.comment, expected.comment) << expected.frame;
    EXPECT_EQ(found.first_atom_line, expected.first_line) << expected.frame;
  }
}

TEST(XyzTrajectory, IsReadOnlyAsFarAsNeeded) {
  const std::string cut_off = "1\n\nHe 0 0 0\nmore text\n";
  EXPECT_FALSE(read_xyz_frame(cut_off, 1).problem);
  for (const int number : {2, -1}) {
    const XyzReading reading = read_xyz_frame(cut_off, number);
    expect_problem(reading, {Kind::NoNextCount, 4});
    EXPECT_TRUE(reading.frames.empty());
    EXPECT_EQ(words(*reading.problem),
              "the next structure does not begin with the number of its atoms, 1 or more");
  }
  // Frames that are not asked for may have anything for atoms.
  EXPECT_FALSE(read_xyz_frame("1\n\nnone\n1\n\nHe 0 0 0\n", 2).problem);
}

TEST(XyzTrajectory, HasNoFrameBeforeTheFirstOrAfterTheLast) {
  const auto problem_of = [](std::string_view text, int number) {
    const XyzReading reading = read_xyz_frame(text, number);
    EXPECT_TRUE(reading.frames.empty());
    return words(reading.problem.value());
  };
  EXPECT_EQ(problem_of(three_structures, 4), "has no structure 4: there are only 3 structures");
  EXPECT_EQ(problem_of(three_structures, -4), "has no structure -4: there are only 3 structures");
  EXPECT_EQ(problem_of(three_structures, 0), "has no structure 0: there are only 3 structures");
  EXPECT_EQ(problem_of("1\n\nHe 0 0 0\n", 2), "has no structure 2: there is only 1 structure");
  EXPECT_EQ(problem_of("1\n\nHe 0 0 0\n", std::numeric_limits<int>::min()),
            "has no structure -2147483648: there is only 1 structure");
}

TEST(XyzTrajectory, MayBeCutOff) {
  constexpr std::string_view cut_off = "2\n\nHe 0 0 0\nHe 0 0 1\n2\n\nHe 0 0 0\n";
  expect_problem(read_xyz_frame(cut_off, 2), too_few_atoms(5, 1, 2));
  expect_problem(read_xyz_frame(cut_off, -1), too_few_atoms(5, 1, 2));
}

TEST(XyzTrajectory, GivesAllOfItsFrames) {
  const XyzReading all = read_xyz_frames(three_structures);
  EXPECT_FALSE(all.problem);
  ASSERT_EQ(all.frames.size(), 3U);
  for (std::size_t i = 0; i < all.frames.size(); ++i) {
    const XyzReading one = read_xyz_frame(three_structures, static_cast<int>(i + 1));
    EXPECT_EQ(all.frames[i].atoms, one.frames.at(0).atoms) << i;
    EXPECT_EQ(all.frames[i].comment, one.frames.at(0).comment) << i;
    EXPECT_EQ(all.frames[i].first_atom_line, one.frames.at(0).first_atom_line) << i;
  }
}

TEST(XyzTrajectory, GivesTheFramesBeforeAProblem) {
  expect_problem(read_xyz_frames(""), {Kind::NoCount, 1});
  const XyzReading reading = read_xyz_frames("1\n\nHe 0 0 0\n1\n\nHe 0 0 x\n");
  expect_problem(reading, no_atom_in(6));
  ASSERT_EQ(reading.frames.size(), 1U);
  EXPECT_EQ(reading.frames[0].atoms, (std::vector<AtomRecord>{{"He", 0, 0, 0}}));
}

struct CountRow {
  std::string_view text;
  std::optional<std::size_t> count;
};

TEST(XyzCount, IsThatOfTheFirstLine) {
  const CountRow counts[] = {{"12\nx", 12},          {" 3\r\n", 3},       {"1", 1},
                             {"", std::nullopt},     {"0", std::nullopt}, {"\n1\n", std::nullopt},
                             {"1 2\n", std::nullopt}};
  for (const CountRow& row : counts) EXPECT_EQ(find_xyz_count(row.text), row.count) << row.text;
}

}  // namespace
}  // namespace kelp::input::quill::lossless
