#include <gtest/gtest.h>

#include "interface/written_piece.hpp"
#include "kelp/input/quill/writer.hpp"
#include "support/comparison.hpp"
#include "support/printing.hpp"

namespace kelp::input::quill {

namespace {

using namespace std::string_literals;
using namespace std::string_view_literals;

constexpr auto none = GeometryKind::None;
constexpr auto atoms = GeometryKind::Atoms;
constexpr auto xyz_file = GeometryKind::XyzFile;
constexpr auto xyz_trajectory = GeometryKind::XyzTrajectory;

using GeometryRow = PieceRow<GeometryBlock>;

class GeometryText : public testing::TestWithParam<GeometryRow> {};

TEST_P(GeometryText, IsAsWritten) { EXPECT_EQ(to_string(GetParam().piece), GetParam().text); }

/// Content for every kind, so that each kind shows what it leaves out.
GeometryBlock filled(GeometryKind kind, bool has_line) {
  return {kind, -1, 2, has_line, {{"H", 0.0, 0.0, 0.74}}, {"a.xyz", "b.xyz"}};
}

constexpr std::string_view filled_atom = "H        0.000000      0.000000      0.740000\n";
constexpr std::string_view filled_atom_and_line =
    "-1 2\nH        0.000000      0.000000      0.740000\n";

const GeometryRow kind_rows[] = {
    {"Default", {}, ""},
    {"None", filled(none, false), ""},
    {"NoneWithTheLine", filled(none, true), "-1 2\n"},
    {"Atoms", filled(atoms, false), filled_atom},
    {"AtomsWithTheLine", filled(atoms, true), filled_atom_and_line},
    {"XyzFile", filled(xyz_file, false), "XYZ a.xyz\nXYZ b.xyz\n"},
    {"XyzFileWithTheLine", filled(xyz_file, true), "-1 2\nXYZ a.xyz\nXYZ b.xyz\n"},
    {"XyzTrajectory", filled(xyz_trajectory, false), "XYZTRAJ a.xyz\n"},
    {"XyzTrajectoryWithTheLine", filled(xyz_trajectory, true), "-1 2\nXYZTRAJ a.xyz\n"},
    {"KindBelowTheFirst", filled(GeometryKind{-1}, false), ""},
    {"KindBelowTheFirstWithTheLine", filled(GeometryKind{-1}, true), "-1 2\n"},
    {"KindAboveTheLast", filled(GeometryKind{4}, false), ""},
    {"KindAboveTheLastWithTheLine", filled(GeometryKind{4}, true), "-1 2\n"},
    {"GreatestKind", filled(GeometryKind{greatest}, false), ""},
    {"NoAtoms", {atoms}, ""},
    {"NoAtomsButTheLine", {atoms, 0, 1, true}, "0 1\n"},
    {"NoFiles", {xyz_file}, ""},
    {"NoFilesButTheLine", {xyz_file, 0, 1, true}, "0 1\n"},
    {"NoTrajectory", {xyz_trajectory}, "XYZTRAJ\n"},
    {"NoTrajectoryButTheLine", {xyz_trajectory, 0, 1, true}, "0 1\nXYZTRAJ\n"},
    {"OneFile", {xyz_file, 0, 1, false, {}, {"a.xyz"}}, "XYZ a.xyz\n"},
    {"EmptyPath", {xyz_file, 0, 1, false, {}, {""}}, "XYZ \n"},
    {"EmptyTrajectoryPath", {xyz_trajectory, 0, 1, false, {}, {""}}, "XYZTRAJ \n"},
    {"EmptyTrajectoryPathFirst", {xyz_trajectory, 0, 1, false, {}, {"", "b"}}, "XYZTRAJ \n"},
    {"PathWithBlanks", {xyz_file, 0, 1, false, {}, {" my file "}}, "XYZ  my file \n"},
    {"PathWithQuotes", {xyz_trajectory, 0, 1, false, {}, {"\"a\""}}, "XYZTRAJ \"a\"\n"},
    {"PathWithAnyBytes", {xyz_file, 0, 1, false, {}, {"a\0\n\xFF"s}}, "XYZ a\0\n\xFF\n"sv},
    {"RepeatedPath", {xyz_file, 0, 1, false, {}, {"a", "a"}}, "XYZ a\nXYZ a\n"},
    {"NegativeMultiplicity", {none, 0, -3, true}, "0 -3\n"},
    {"ExtremeNumbers", {none, least, greatest, true}, "-2147483648 2147483647\n"},
    {"ExtremeNumbersSwapped", {none, greatest, least, true}, "2147483647 -2147483648\n"},
    {"NumbersAreNotGrouped", {none, 12345, 67890, true}, "12345 67890\n"},
};

INSTANTIATE_TEST_SUITE_P(Kinds, GeometryText, testing::ValuesIn(kind_rows),
                         name_of_row<GeometryBlock>);

GeometryBlock atom(const char* symbol, double x, double y, double z) {
  return {atoms, 0, 1, false, {{symbol, x, y, z}}, {}};
}

const GeometryRow atom_rows[] = {
    {"EachCoordinateInItsField", atom("O", 1.0, -2.5, 0.1173),
     "O        1.000000     -2.500000      0.117300\n"},
    {"NegativeZeros", atom("O", -0.0, 0.0, -0.0),
     "O       -0.000000      0.000000     -0.000000\n"},
    {"EmptySymbol", atom("", 0.0, 0.0, 0.0), "         0.000000      0.000000      0.000000\n"},
    {"SymbolOfTwo", atom("Cl", 0.0, 0.0, 0.0), "Cl       0.000000      0.000000      0.000000\n"},
    {"SymbolOfThree", atom("Uue", 0.0, 0.0, 0.0),
     "Uue      0.000000      0.000000      0.000000\n"},
    {"SymbolOfFour", atom("Abcd", 0.0, 0.0, 0.0),
     "Abcd      0.000000      0.000000      0.000000\n"},
    {"SymbolAsStored", atom(" h\t\"", 0.0, 0.0, 0.0),
     " h\t\"      0.000000      0.000000      0.000000\n"},
    {"WidthCountsBytes", atom("\xC3\xA4", 0.0, 0.0, 0.0),
     "\xC3\xA4       0.000000      0.000000      0.000000\n"},
    {"FieldsThatAreFullTouch", atom("Uue", 1234567.0, 1234567.0, -12.5),
     "Uue1234567.0000001234567.000000    -12.500000\n"},
    {"LongNumbersShiftTheColumns", atom("H", 123456789.0, -1234567.0, 1.0),
     "H  123456789.000000-1234567.000000      1.000000\n"},
    {"OnlyTheFirstIsLong", atom("H", -1234567.5, 2.0, 3.0),
     "H  -1234567.500000      2.000000      3.000000\n"},
    {"OnlyTheSecondIsLong", atom("H", 1.0, -1234567.5, 3.0),
     "H        1.000000-1234567.500000      3.000000\n"},
    {"OnlyTheThirdIsLong", atom("H", 1.0, 2.0, -1234567.5),
     "H        1.000000      2.000000-1234567.500000\n"},
    {"SixDecimalsRounded", atom("H", 0.12345649, 0.1234565001, 1e-7),
     "H        0.123456      0.123457      0.000000\n"},
    {"NotFinite", atom("H", infinity, -infinity, nan),
     "H             inf          -inf           nan\n"},
    {"Large", atom("H", 1e15, -1e15, 0.0),
     "H  1000000000000000.000000-1000000000000000.000000      0.000000\n"},
};

INSTANTIATE_TEST_SUITE_P(Atoms, GeometryText, testing::ValuesIn(atom_rows),
                         name_of_row<GeometryBlock>);

TEST(GeometryText, KeepsTheOrderOfTheAtomsAndRepeatsEqualOnes) {
  const GeometryBlock geometry{
      atoms, 0, 1, false, {{"O", 3.0, 2.0, 1.0}, {"H", 1.0, 2.0, 3.0}, {"O", 3.0, 2.0, 1.0}}, {}};
  EXPECT_EQ(to_string(geometry),
            "O        3.000000      2.000000      1.000000\n"
            "H        1.000000      2.000000      3.000000\n"
            "O        3.000000      2.000000      1.000000\n");
}

}  // namespace

}  // namespace kelp::input::quill
