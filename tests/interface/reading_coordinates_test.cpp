// Coordinate sections within whole texts.

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

class ReadingCoordinates : public testing::TestWithParam<ReadingRow> {};

TEST_P(ReadingCoordinates, Gives) { EXPECT_EQ(parse_string(GetParam().text), GetParam().result); }

const AtomRecord oxygen{"O", 0.0, 0.0, 0.0};
const AtomRecord hydrogen{"H", 0.0, 0.0, 1.0};

const ReadingRow atom_rows[] = {
    {"OneAtom", "O 0 0 0\n", read_as({{}, atoms({oxygen})})},
    {"AtomsInTheOrderOfTheText", "H 0 0 1\nO 0 0 0\nH 0 0 1\n",
     read_as({{}, atoms({hydrogen, oxygen, hydrogen})})},
    {"BlankLinesBetween", "O 0 0 0\n\nH 0 0 1\n", read_as({{}, atoms({oxygen, hydrogen})})},
    {"ManyBlankLinesBetween", "O 0 0 0\n\n \t\r\n\nH 0 0 1\n",
     read_as({{}, atoms({oxygen, hydrogen})})},
    {"SymbolsInAnyLetterCase", "FE 0 0 0\nfe 0 0 0\nfE 0 0 0",
     read_as({{}, atoms({{"Fe", 0, 0, 0}, {"Fe", 0, 0, 0}, {"Fe", 0, 0, 0}})})},
    {"CoordinatesExactlyAsParsed", "H -1.25e-3 .1 1234567.123456789",
     read_as({{}, atoms({{"H", -0.00125, 0.1, 1234567.123456789}})})},
    {"AnUnknownElement", "Xx 0 0 0",
     read_as({{}, atoms({{"Xx", 0, 0, 0}})}, {"Line 1: unknown element symbol 'Xx'"})},
    {"AnUnknownElementInItsNormalSpelling", "wATER 0 0 0",
     read_as({{}, atoms({{"Water", 0, 0, 0}})}, {"Line 1: unknown element symbol 'Water'"})},
    {"EveryUnknownElement", "X 0 0 0\n\nO 0 0 0\nBq 0 0 0\nX 0 0 0",
     read_as({{}, atoms({{"X", 0, 0, 0}, oxygen, {"Bq", 0, 0, 0}, {"X", 0, 0, 0}})},
             {"Line 1: unknown element symbol 'X'", "Line 4: unknown element symbol 'Bq'",
              "Line 5: unknown element symbol 'X'"})},
    {"DeuteriumIsNotAnElement", "D 0 0 0",
     read_as({{}, atoms({{"D", 0, 0, 0}})}, {"Line 1: unknown element symbol 'D'"})},
    {"AConstraintEndsThem", "O 0 0 0\nC 1\n",
     read_as({{}, atoms({oxygen}), {constraint(Kind::AtomConstraint, {1}, "C 1")}})},
    {"AReferenceEndsThem", "O 0 0 0\nXYZ a.xyz\nH 0 0 1",
     read_as({{}, atoms({oxygen}), {raw("XYZ a.xyz"), raw("H 0 0 1")}})},
    {"ATrajectoryEndsThem", "O 0 0 0\nXYZTRAJ t.xyz",
     read_as({{}, atoms({oxygen}), {raw("XYZTRAJ t.xyz")}})},
    {"ThreeTokensEndThem", "O 0 0 0\nH 0 0\nH 0 0 1",
     read_as({{}, atoms({oxygen}), {raw("H 0 0"), raw("H 0 0 1")}})},
    {"FiveTokensEndThem", "O 0 0 0\nH 0 0 1 2\nH 0 0 1",
     read_as({{}, atoms({oxygen}), {raw("H 0 0 1 2"), raw("H 0 0 1")}})},
    {"ADigitInTheSymbolEndsThem", "O 0 0 0\nH1 0 0 1",
     read_as({{}, atoms({oxygen}), {raw("H1 0 0 1")}})},
    {"AMalformedNumberEndsThem", "O 0 0 0\nH 0 0 1x",
     read_as({{}, atoms({oxygen}), {raw("H 0 0 1x")}})},
    {"ThreeTokensAreNoFirstAtom", "O 0 0", read_as({{}, {}, {raw("O 0 0")}}, {no_section})},
    {"FiveTokensAreNoFirstAtom", "O 0 0 0 0", read_as({{}, {}, {raw("O 0 0 0 0")}}, {no_section})},
    {"AnElementNumberIsNotAFirstAtom", "8 0 0 0",
     read_as({{}, {}, {raw("8 0 0 0")}}, {no_section})},
    {"ThreeNumbersAreNeitherChargeNorAtom", "#sp\n1 2 3",
     read_as({{flag("sp")}, {}, {raw("1 2 3")}}, {no_section})},
    {"NoAtomAndNoChargeWithACharge", "0 1\nC 1",
     read_as({{}, charged(0, 1), {constraint(Kind::AtomConstraint, {1}, "C 1")}})},
    {"WhatFollowsALineThatIsNotAnAtomIsText", "0 1\nO 0 0\nO 0 0 0",
     read_as({{}, charged(0, 1), {raw("O 0 0"), raw("O 0 0 0")}})},
    {"CommandWordsOfFourTokensAreAtoms", "0 1\nB 1 2 3\nC 1 2 3",
     read_as({{}, charged(0, 1, atoms({{"B", 1, 2, 3}, {"C", 1, 2, 3}}))})},
    {"AnAngleConstraintAfterAtomsIsAnAtom", "O 0 0 0\n\nA 1 2 3\n",
     read_as({{}, atoms({oxygen, {"A", 1, 2, 3}})}, {"Line 3: unknown element symbol 'A'"})},
    {"AFourTokenBondAfterAtomsIsAnAtom", "O 0 0 0\n\nB 1 2 3\nc 1 2 3\n",
     read_as({{}, atoms({oxygen, {"B", 1, 2, 3}, {"C", 1, 2, 3}})})},
    {"AnAngleConstraintAfterAnotherLineIsOne", "O 0 0 0\nB 1 2\nA 1 2 3\n",
     read_as({{},
              atoms({oxygen}),
              {constraint(Kind::BondConstraint, {1, 2}, "B 1 2"),
               constraint(Kind::AngleConstraint, {1, 2, 3}, "A 1 2 3")}})},
    {"AnAngleConstraintWithAWordAfterAtoms", "O 0 0 0\nA 1 2 x\n",
     read_as({{}, atoms({oxygen})}, {"Line 2: ignored unrecognized QUILL post-processing line"})},
};
INSTANTIATE_TEST_SUITE_P(Atoms, ReadingCoordinates, testing::ValuesIn(atom_rows),
                         [](const auto& row) { return row.param.name; });

const ReadingRow file_rows[] = {
    {"OneFile", "0 1\nxyz a.xyz\n", read_as({{}, charged(0, 1, files({"a.xyz"}))})},
    {"WithoutACharge", "XYZ a.xyz", read_as({{}, files({"a.xyz"})})},
    {"BlankLinesBetween", "XYZ a.xyz\n\nXYZ b.xyz\n", read_as({{}, files({"a.xyz", "b.xyz"})})},
    {"ManyInTheOrderOfTheText", "XYZ c\n\n\t\n\nxyz a\nXyz b\nXYZ a\n",
     read_as({{}, files({"c", "a", "b", "a"})})},
    {"APathWithBlanks", "XYZ  my  file.xyz ", read_as({{}, files({"my  file.xyz"})})},
    {"APathInQuotes", "XYZ 'a b'", read_as({{}, files({"'a b'"})})},
    {"APathOfNumbers", "XYZ 0 0 0", read_as({{}, files({"0 0 0"})})},
    {"NoPath", "XYZ", read_as({{}, files({})}, {"Line 1: XYZ reference has no file path"})},
    {"NoPathThenAPath", "XYZ\nXYZ b.xyz\n",
     read_as({{}, files({"b.xyz"})}, {"Line 1: XYZ reference has no file path"})},
    {"APathThenNoPathThenAPath", "XYZ a\nxyz \t\n\nXYZ c\n",
     read_as({{}, files({"a", "c"})}, {"Line 2: XYZ reference has no file path"})},
    {"ATrajectoryEndsThem", "XYZ a.xyz\nXYZTRAJ t.xyz\nXYZ b.xyz\n",
     read_as({{}, files({"a.xyz"}), {raw("XYZTRAJ t.xyz"), raw("XYZ b.xyz")}})},
    {"AnAtomEndsThem", "XYZ a.xyz\n\nO 0 0 0\nXYZ b.xyz",
     read_as({{}, files({"a.xyz"}), {raw("O 0 0 0"), raw("XYZ b.xyz")}})},
    {"AConstraintEndsThem", "XYZ a.xyz\n\nC 1\n",
     read_as({{}, files({"a.xyz"}), {constraint(Kind::AtomConstraint, {1}, "C 1")}})},
    {"AnAngleConstraintAfterThemIsOne", "XYZ a.xyz\nA 1 2 3\n",
     read_as({{}, files({"a.xyz"}), {constraint(Kind::AngleConstraint, {1, 2, 3}, "A 1 2 3")}})},
    {"AKeywordWithMoreLettersIsNotAReference", "XYZFILE a",
     read_as({{}, {}, {raw("XYZFILE a")}}, {no_section})},
};
INSTANTIATE_TEST_SUITE_P(Files, ReadingCoordinates, testing::ValuesIn(file_rows),
                         [](const auto& row) { return row.param.name; });

const ReadingRow trajectory_rows[] = {
    {"OneTrajectory", "1 2\nXYZTRAJ t.xyz", read_as({{}, charged(1, 2, trajectory({"t.xyz"}))})},
    {"InLowerCase", "xyztraj T.xyz", read_as({{}, trajectory({"T.xyz"})})},
    {"APathWithBlanks", "XYZTRAJ my  file.xyz \r\n", read_as({{}, trajectory({"my  file.xyz"})})},
    {"NoPath", "\nXYZTRAJ  \n",
     read_as({{}, trajectory({})}, {"Line 2: XYZTRAJ reference has no file path"})},
    {"ASecondOneIsText", "XYZTRAJ t.xyz\nXYZTRAJ u.xyz\n",
     read_as({{}, trajectory({"t.xyz"}), {raw("XYZTRAJ u.xyz")}})},
    {"AFileAfterItIsText", "XYZTRAJ t.xyz\nXYZ a.xyz\n",
     read_as({{}, trajectory({"t.xyz"}), {raw("XYZ a.xyz")}})},
    {"WithoutAPathASecondOneIsTextToo", "XYZTRAJ\nXYZTRAJ u.xyz\n",
     read_as({{}, trajectory({}), {raw("XYZTRAJ u.xyz")}},
             {"Line 1: XYZTRAJ reference has no file path"})},
    {"AnAtomAfterItIsText", "XYZTRAJ t.xyz\n\nO 0 0 0",
     read_as({{}, trajectory({"t.xyz"}), {raw("O 0 0 0")}})},
};
INSTANTIATE_TEST_SUITE_P(Trajectory, ReadingCoordinates, testing::ValuesIn(trajectory_rows),
                         [](const auto& row) { return row.param.name; });

}  // namespace
}  // namespace kelp::input::quill
