// Post-processing lines within whole texts. Line 1, before each row's lines, is "0 1".

#include <gtest/gtest.h>

#include <string>

#include "interface/expected.hpp"
#include "kelp/input/quill/quill.hpp"
#include "support/comparison.hpp"
#include "support/printing.hpp"

namespace kelp::input::quill {
namespace {

using namespace std::string_literals;

using Kind = PostCommandKind;

class ReadingPostLines : public testing::TestWithParam<ReadingRow> {};

TEST_P(ReadingPostLines, Gives) {
  EXPECT_EQ(parse_string("0 1\n" + GetParam().text), GetParam().result);
}

ParseResult post(std::vector<PostCommand> commands, std::vector<std::string> warnings = {}) {
  return read_as({{}, charged(0, 1), std::move(commands)}, std::move(warnings));
}

const std::string dropped = "Line 2: ignored unrecognized QUILL post-processing line";

const ReadingRow rows[] = {
    {"AnAtom", "C 3", post({constraint(Kind::AtomConstraint, {3}, "C 3")})},
    {"AnAtomInLowerCase", "c 3", post({constraint(Kind::AtomConstraint, {3}, "c 3")})},
    {"ANegativeAtomNumber", "C -1", post({constraint(Kind::AtomConstraint, {-1}, "C -1")})},
    {"ABond", "B 1 2", post({constraint(Kind::BondConstraint, {1, 2}, "B 1 2")})},
    {"ADihedral", "D 1 2 3 4",
     post({constraint(Kind::DihedralConstraint, {1, 2, 3, 4}, "D 1 2 3 4")})},
    {"ABondScan", "S 1 2 1.5 10", post({scan({1, 2}, 1.5, 10, "S 1 2 1.5 10")})},
    {"AnAngleScan", "S 1 2 3 90 12", post({scan({1, 2, 3}, 90.0, 12, "S 1 2 3 90 12")})},
    {"ADihedralScan", "S 1 2 3 4 120.0 12",
     post({scan({1, 2, 3, 4}, 120.0, 12, "S 1 2 3 4 120.0 12")})},
    {"APostFile", "POST results/out file.txt",
     post({post_file("results/out file.txt", "POST results/out file.txt")})},
    {"APostFileInLowerCase", "post x", post({post_file("x", "post x")})},
    {"PostAlone", "POST", post({raw("POST")})},
    {"Text", "  keep   this  ", post({raw("keep   this")})},
    {"AHashLine", "#freq", post({raw("#freq")})},
    {"ABondOfFourTokensThatIsNotAnAtom", "note\nB 1 2 3", post({raw("note"), raw("B 1 2 3")})},
    {"AScanWithTooManyTokens", "S 1 2 3 4 5 1.0 3", post({raw("S 1 2 3 4 5 1.0 3")})},
    {"AScanWithTooFewTokens", "note\nS 1 2 3", post({raw("note"), raw("S 1 2 3")})},
    {"ABondWithAWord", "B 1 x", post({}, {dropped})},
    {"AnAtomWithAWord", "C x", post({}, {dropped})},
    {"AScanWithFractionalSteps", "S 1 2 1.5 2.5", post({}, {dropped})},
    {"AScanWithAWordForItsValue", "S 1 2 x 10", post({}, {dropped})},
    {"ABadLineBetweenGoodOnes", "C 1\nB 1 x\n\nD 1 2 3 y\nC 2",
     post({constraint(Kind::AtomConstraint, {1}, "C 1"),
           constraint(Kind::AtomConstraint, {2}, "C 2")},
          {"Line 3: ignored unrecognized QUILL post-processing line",
           "Line 5: ignored unrecognized QUILL post-processing line"})},
    {"EveryKindInTheOrderOfTheText",
     "POST a\nnote\nC 1\n#freq\nA 1 2 3\nS 1 2 -2.5e1 3\nB 2 1\nPOST b\nD 4 3 2 1\nC 1",
     post({post_file("a", "POST a"), raw("note"), constraint(Kind::AtomConstraint, {1}, "C 1"),
           raw("#freq"), constraint(Kind::AngleConstraint, {1, 2, 3}, "A 1 2 3"),
           scan({1, 2}, -25.0, 3, "S 1 2 -2.5e1 3"),
           constraint(Kind::BondConstraint, {2, 1}, "B 2 1"), post_file("b", "POST b"),
           constraint(Kind::DihedralConstraint, {4, 3, 2, 1}, "D 4 3 2 1"),
           constraint(Kind::AtomConstraint, {1}, "C 1")})},
};
INSTANTIATE_TEST_SUITE_P(Table, ReadingPostLines, testing::ValuesIn(rows),
                         [](const auto& row) { return row.param.name; });

}  // namespace
}  // namespace kelp::input::quill
