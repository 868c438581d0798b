#include "quill-inp/formats/xyz_file.hpp"

#include <gtest/gtest.h>

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "quill-inp/process/trouble.hpp"
#include "support/comparison.hpp"
#include "support/printing.hpp"

namespace kelp::input::quill::tool {
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
  EXPECT_EQ(read_xyz_structure(GetParam().text).atoms, GetParam().atoms);
}

INSTANTIATE_TEST_SUITE_P(Table, XyzFile, testing::ValuesIn(rows),
                         [](const auto& row) { return std::string(row.param.name); });

struct BadRow {
  std::string_view name;
  std::string_view text;
  std::string_view complaint;
  std::optional<std::size_t> line = std::nullopt;
};

class BadXyzFile : public testing::TestWithParam<BadRow> {};

constexpr std::string_view no_count = "an XYZ file begins with the number of its atoms, 1 or more";
constexpr std::string_view no_atom = "expected an atom, a symbol and three coordinates";

const BadRow bad_rows[] = {
    {"NoText", "", no_count, 1},
    {"NoCount", "He 0 0 0\n", no_count, 1},
    {"TwoCounts", "1 1\n\nHe 0 0 0\n", no_count, 1},
    {"NoAtoms", "0\n\n", no_count, 1},
    {"ANegativeCount", "-1\n\n", no_count, 1},
    {"TheCountAlone", "2", "has 0 atoms instead of 2"},
    {"TheCountAndTheComment", "2\n\n", "has 0 atoms instead of 2"},
    {"OneAtomOfTwo", "2\n\nHe 0 0 0\n", "has 1 atom instead of 2"},
    {"HugeCount", "2147483647\n\nHe 0 0 0\n", "has 1 atom instead of 2147483647"},
    {"TooFewColumns", "1\n\nHe 0 0\n", no_atom, 3},
    {"NoNumberForX", "1\n\nHe a 0 0\n", no_atom, 3},
    {"NoNumberForY", "1\n\nHe 0 a 0\n", no_atom, 3},
    {"NoNumberForZ", "1\n\nHe 0 0 a\n", no_atom, 3},
    {"AtomicNumberForASymbol", "1\n\n2 0 0 0\n", no_atom, 3},
    {"SymbolWithADigit", "1\n\nHe1 0 0 0\n", no_atom, 3},
    {"SymbolWithTheCharacterBeforeA", "1\n\nH@ 0 0 0\n", no_atom, 3},
    {"SymbolWithTheCharacterAfterZ", "1\n\nH[ 0 0 0\n", no_atom, 3},
    {"SymbolWithTheCharacterBeforeSmallA", "1\n\nH` 0 0 0\n", no_atom, 3},
    {"SymbolWithTheCharacterAfterSmallZ", "1\n\nH{ 0 0 0\n", no_atom, 3},
    {"BlankLineBetweenAtoms", "2\n\nHe 0 0 0\n\nHe 0 0 1\n", no_atom, 4},
    {"ASecondStructure", "1\n\nHe 0 0 0\n1\n\nHe 0 0 1\n",
     "more text after the last atom; use --frame N for one of several structures", 4},
};

TEST_P(BadXyzFile, IsRefusedWithTheLine) {
  try {
    read_xyz_structure(GetParam().text);
    FAIL() << "no exception";
  } catch (const Trouble& trouble) {
    EXPECT_EQ(std::string_view(trouble.what()), GetParam().complaint);
    EXPECT_EQ(trouble.line(), GetParam().line);
  }
}

INSTANTIATE_TEST_SUITE_P(Table, BadXyzFile, testing::ValuesIn(bad_rows),
                         [](const auto& row) { return std::string(row.param.name); });

constexpr std::string_view three_structures =
    "1\nfirst\nHe 0 0 0\n\n2\nsecond\nH 0 0 1\nH 0 0 2\n1\nthird\nHe 0 0 3\n\n";

TEST(XyzTrajectory, GivesTheStructureThatIsAskedFor) {
  struct Expected {
    int frame;
    std::vector<AtomRecord> atoms;
    std::size_t first_line;
  };
  const std::vector<Expected> all = {
      {1, {{"He", 0, 0, 0}}, 3},
      {2, {{"H", 0, 0, 1}, {"H", 0, 0, 2}}, 7},
      {3, {{"He", 0, 0, 3}}, 11},
      {-1, {{"He", 0, 0, 3}}, 11},
      {-2, {{"H", 0, 0, 1}, {"H", 0, 0, 2}}, 7},
      {-3, {{"He", 0, 0, 0}}, 3},
  };
  for (const Expected& expected : all) {
    const XyzStructure found = read_xyz_structure(three_structures, expected.frame);
    EXPECT_EQ(found.atoms, expected.atoms) << expected.frame;
    EXPECT_EQ(found.first_line, expected.first_line) << expected.frame;
  }
}

std::string complaint_about(std::string_view text, int frame) {
  try {
    read_xyz_structure(text, frame);
  } catch (const Trouble& trouble) {
    const std::string line = trouble.line() ? std::to_string(*trouble.line()) + ": " : "";
    return line + trouble.what();
  }
  return {};
}

TEST(XyzTrajectory, IsReadOnlyAsFarAsNeeded) {
  const std::string cut_off = "1\n\nHe 0 0 0\nmore text\n";
  EXPECT_EQ(complaint_about(cut_off, 1), "");
  EXPECT_EQ(complaint_about(cut_off, 2),
            "4: the next structure does not begin with the number of its atoms, 1 or more");
  EXPECT_EQ(complaint_about(cut_off, -1),
            "4: the next structure does not begin with the number of its atoms, 1 or more");
}

TEST(XyzTrajectory, HasNoStructureBeforeTheFirstOrAfterTheLast) {
  EXPECT_EQ(complaint_about(three_structures, 4),
            "has no structure 4: there are only 3 structures");
  EXPECT_EQ(complaint_about(three_structures, -4),
            "has no structure -4: there are only 3 structures");
  EXPECT_EQ(complaint_about("1\n\nHe 0 0 0\n", 2), "has no structure 2: there is only 1 structure");
  EXPECT_EQ(complaint_about("2\n\nHe 0 0 0\nHe 0 0 1\n2\n\nHe 0 0 0\n", 2),
            "5: has 1 atom instead of 2");
}

TEST(XyzTrajectory, GivesAllOfItsStructures) {
  const std::vector<XyzStructure> all = read_xyz_structures(three_structures);
  ASSERT_EQ(all.size(), 3U);
  for (std::size_t i = 0; i < all.size(); ++i) {
    const XyzStructure one = read_xyz_structure(three_structures, static_cast<int>(i + 1));
    EXPECT_EQ(all[i].atoms, one.atoms) << i;
    EXPECT_EQ(all[i].first_line, one.first_line) << i;
  }
  EXPECT_THROW(read_xyz_structures(""), Trouble);
  EXPECT_THROW(read_xyz_structures("1\n\nHe 0 0 0\nmore text\n"), Trouble);
}

}  // namespace
}  // namespace kelp::input::quill::tool
