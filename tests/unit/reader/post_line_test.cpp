#include "reader/post_line.hpp"

#include <gtest/gtest.h>

#include <cstdint>
#include <optional>
#include <ostream>
#include <string>
#include <vector>

#include "support/comparison.hpp"
#include "support/printing.hpp"
#include "support/read_line.hpp"

namespace kelp::input::quill {
namespace {

using namespace std::string_literals;

using Kind = PostCommandKind;
using Numbers = std::vector<std::int32_t>;

struct Row {
  std::string name;
  std::string line;
  std::optional<PostCommand> command = std::nullopt;
};

void PrintTo(const Row& row, std::ostream* out) { *out << testing::PrintToString(row.line); }

PostCommand constraint(Kind kind, Numbers atoms, std::string line) {
  return PostCommand(kind, std::move(atoms), std::nullopt, std::nullopt, {}, std::move(line));
}

PostCommand scan(Numbers atoms, double value, std::int32_t steps, std::string line) {
  return PostCommand(Kind::Scan, std::move(atoms), value, steps, {}, std::move(line));
}

PostCommand post_file(std::string path, std::string line) {
  return PostCommand(Kind::PostFile, {}, std::nullopt, std::nullopt, std::move(path),
                     std::move(line));
}

PostCommand raw(std::string line) { return constraint(Kind::Raw, {}, std::move(line)); }

class PostLine : public testing::TestWithParam<Row> {};

TEST_P(PostLine, IsReadAs) { EXPECT_EQ(read_post_line(GetParam().line), GetParam().command); }

const Row constraints[] = {
    {"OneAtom", "C 3", constraint(Kind::AtomConstraint, {3}, "C 3")},
    {"OneAtomInLowerCase", "c 3", constraint(Kind::AtomConstraint, {3}, "c 3")},
    {"ABond", "B 1 2", constraint(Kind::BondConstraint, {1, 2}, "B 1 2")},
    {"ABondInLowerCase", "b 1 2", constraint(Kind::BondConstraint, {1, 2}, "b 1 2")},
    {"AnAngle", "A 1 2 3", constraint(Kind::AngleConstraint, {1, 2, 3}, "A 1 2 3")},
    {"AnAngleInLowerCase", "a 1 2 3", constraint(Kind::AngleConstraint, {1, 2, 3}, "a 1 2 3")},
    {"ADihedral", "D 1 2 3 4", constraint(Kind::DihedralConstraint, {1, 2, 3, 4}, "D 1 2 3 4")},
    {"ADihedralInLowerCase", "d 1 2 3 4",
     constraint(Kind::DihedralConstraint, {1, 2, 3, 4}, "d 1 2 3 4")},
    {"AtomsInTheOrderOfTheLine", "D 4 1 3 2",
     constraint(Kind::DihedralConstraint, {4, 1, 3, 2}, "D 4 1 3 2")},
    {"AnyNumbers", "B -1 0", constraint(Kind::BondConstraint, {-1, 0}, "B -1 0")},
    {"TheSameAtomTwice", "B 7 7", constraint(Kind::BondConstraint, {7, 7}, "B 7 7")},
    {"APlusSign", "C +3", constraint(Kind::AtomConstraint, {3}, "C +3")},
    {"TheLargestAndTheSmallestNumber", "B 2147483647 -2147483648",
     constraint(Kind::BondConstraint, {2147483647, -2147483647 - 1}, "B 2147483647 -2147483648")},
    {"OuterBlanksGoAndInnerOnesStay", " \tB  1\t2 \r",
     constraint(Kind::BondConstraint, {1, 2}, "B  1\t2")},
};
INSTANTIATE_TEST_SUITE_P(Constraint, PostLine, testing::ValuesIn(constraints),
                         [](const auto& row) { return row.param.name; });

const Row scans[] = {
    {"ABond", "S 1 2 1.5 10", scan({1, 2}, 1.5, 10, "S 1 2 1.5 10")},
    {"AnAngle", "S 1 2 3 90 12", scan({1, 2, 3}, 90.0, 12, "S 1 2 3 90 12")},
    {"ADihedral", "S 1 2 3 4 120.0 12", scan({1, 2, 3, 4}, 120.0, 12, "S 1 2 3 4 120.0 12")},
    {"LowerCase", "s 1 2 1.5 10", scan({1, 2}, 1.5, 10, "s 1 2 1.5 10")},
    {"AnyNumbers", "S -1 0 -1.5e-3 -10", scan({-1, 0}, -0.0015, -10, "S -1 0 -1.5e-3 -10")},
    {"NegativeZero", "S 1 2 -0 0", scan({1, 2}, -0.0, 0, "S 1 2 -0 0")},
    {"AnIntegerForTheValue", "S 1 2 3 4", scan({1, 2}, 3.0, 4, "S 1 2 3 4")},
    {"OuterBlanksGoAndInnerOnesStay", "  S\t1 2  1.5 10\r",
     scan({1, 2}, 1.5, 10, "S\t1 2  1.5 10")},
};
INSTANTIATE_TEST_SUITE_P(Scan, PostLine, testing::ValuesIn(scans),
                         [](const auto& row) { return row.param.name; });

const Row post_files[] = {
    {"OneWord", "POST out.dat", post_file("out.dat", "POST out.dat")},
    {"LowerCase", "post x", post_file("x", "post x")},
    {"MixedCase", "pOsT x", post_file("x", "pOsT x")},
    {"InnerBlanksStay", "POST results/out  file.txt",
     post_file("results/out  file.txt", "POST results/out  file.txt")},
    {"OuterBlanksGo", "\tPOST \t a b \r", post_file("a b", "POST \t a b")},
    {"QuotesStay", "POST 'a b'", post_file("'a b'", "POST 'a b'")},
    {"NumbersAreAPath", "POST 1 2", post_file("1 2", "POST 1 2")},
    {"ManyWords", "POST a b c d e f g h", post_file("a b c d e f g h", "POST a b c d e f g h")},
    {"BytesOutsideAscii", "POST \xC3\xA9\xFF", post_file("\xC3\xA9\xFF", "POST \xC3\xA9\xFF")},
    {"ANulByte", "POST \0 a"s, post_file("\0 a"s, "POST \0 a"s)},
};
INSTANTIATE_TEST_SUITE_P(PostFile, PostLine, testing::ValuesIn(post_files),
                         [](const auto& row) { return row.param.name; });

const Row nothing[] = {
    {"NoText", ""},
    {"Blanks", " \t\r\n"},
    {"AWordForTheAtom", "C x"},
    {"AWordForTheFirstAtomOfABond", "B x 2"},
    {"AWordForTheLastAtomOfABond", "B 1 x"},
    {"AWordForTheFirstAtomOfAnAngle", "A x 2 3"},
    {"AWordForTheSecondAtomOfAnAngle", "A 1 x 3"},
    {"AWordForTheLastAtomOfAnAngle", "A 1 2 x"},
    {"AWordForTheFirstAtomOfADihedral", "D x 2 3 4"},
    {"AWordForTheLastAtomOfADihedral", "D 1 2 3 x"},
    {"AFractionForAnAtom", "C 1.0"},
    {"AnAtomNumberTooLarge", "C 2147483648"},
    {"AnAtomNumberTooSmall", "C -2147483649"},
    {"ANulByteBehindANumber", "C 1\0"s},
    {"AWordForTheFirstAtomOfAScan", "S x 2 1.5 10"},
    {"AWordForTheLastAtomOfAScan", "S 1 x 1.5 10"},
    {"AFractionForTheThirdAtomOfAScan", "S 1 2 3.5 1.5 10"},
    {"AFractionForTheFourthAtomOfAScan", "S 1 2 3 4.5 1.5 10"},
    {"AWordForTheValueOfAScan", "S 1 2 x 10"},
    {"AValueTooLarge", "S 1 2 1e999 10"},
    {"AFractionForTheSteps", "S 1 2 1.5 2.5"},
    {"AWordForTheSteps", "S 1 2 1.5 x"},
    {"StepsTooLarge", "S 1 2 1.5 2147483648"},
    {"LowerCaseMakesNoDifference", "b 1 x"},
};
INSTANTIATE_TEST_SUITE_P(Malformed, PostLine, testing::ValuesIn(nothing),
                         [](const auto& row) { return row.param.name; });

struct RawRow {
  std::string name;
  std::string line;
};

void PrintTo(const RawRow& row, std::ostream* out) { *out << testing::PrintToString(row.line); }

class RawLine : public testing::TestWithParam<RawRow> {};

TEST_P(RawLine, IsKeptUnchanged) {
  EXPECT_EQ(read_post_line(GetParam().line), raw(GetParam().line));
}

TEST_P(RawLine, LosesItsOuterBlanks) {
  EXPECT_EQ(read_post_line(" \t" + GetParam().line + " \v\f\r\n"), raw(GetParam().line));
}

const RawRow wrong_counts[] = {
    {"NoAtom", "C"},
    {"TwoAtomsForOne", "C 1 2"},
    {"TwoAtomsForOneInLowerCase", "c 1 2"},
    {"NoAtomsForABond", "B"},
    {"OneAtomForABond", "B 1"},
    {"ThreeAtomsForABond", "B 1 2 3"},
    {"NoAtomsForAnAngle", "A"},
    {"TwoAtomsForAnAngle", "A 1 2"},
    {"FourAtomsForAnAngle", "A 1 2 3 4"},
    {"NoAtomsForADihedral", "D"},
    {"ThreeAtomsForADihedral", "D 1 2 3"},
    {"FiveAtomsForADihedral", "D 1 2 3 4 5"},
    {"NothingForAScan", "S"},
    {"FourTokensForAScan", "S 1 2 3"},
    {"EightTokensForAScan", "S 1 2 3 4 5 1.0 3"},
    {"NoPath", "POST"},
    {"NoPathInLowerCase", "post"},
    // The number of tokens decides before any number is read.
    {"TwoWordsForOneAtom", "C x y"},
    {"AWordTooManyForABond", "B 1 2 x"},
    {"TwoAtomsAndAWordForADihedral", "D 1 2 x"},
    {"FourTokensWithAWordForAScan", "S 1 2 x"},
    {"EightTokensWithAWordForAScan", "S 1 2 3 4 5 x 3"},
};
INSTANTIATE_TEST_SUITE_P(WrongCount, RawLine, testing::ValuesIn(wrong_counts),
                         [](const auto& row) { return row.param.name; });

const RawRow other_words[] = {
    {"OneLetterShortOfPost", "POS x"},
    {"OneLetterMoreThanPost", "POSTS x"},
    {"TheFirstLetterOfPost", "P x"},
    {"PostAndAColon", "POST: x"},
    {"PostAndAnEqualsSign", "POST=x"},
    {"AnotherLetterBeforeOneNumber", "X 1"},
    {"AnotherLetterBeforeTwoNumbers", "E 1 2"},
    {"AnotherLetterBeforeThreeNumbers", "O 0 0 0"},
    {"TwoLettersBeforeOneNumber", "CC 1"},
    {"TwoLettersBeforeTwoNumbers", "BB 1 2"},
    {"TwoLettersBeforeAScan", "SS 1 2 1.5 10"},
    {"AColonBehindTheLetter", "C: 1"},
    {"ANumberRightBehindTheLetter", "C1 1"},
    {"AHash", "#"},
    {"AHashBeforeTheLetter", "# C 1"},
    {"AFlag", "#freq"},
    {"AParameterList", "#opt(maxiter=50)"},
    {"ChargeAndMultiplicity", "0 1"},
    {"AReference", "XYZ a.xyz"},
    {"ATrajectory", "XYZTRAJ t.xyz"},
    {"InnerBlanks", "keep   this\ttoo"},
    {"BytesOutsideAscii", "\xC3\xA9 \xFF\x80"},
    {"AByteOutsideAsciiBeforeANumber", "\xC3 1"},
    {"ANulByte", "\0"s},
    {"ANulByteBehindTheLetter", "C\0 1"s},
    {"ANulByteBehindPost", "POST\0x"s},
};
INSTANTIATE_TEST_SUITE_P(OtherWord, RawLine, testing::ValuesIn(other_words),
                         [](const auto& row) { return row.param.name; });

}  // namespace
}  // namespace kelp::input::quill
