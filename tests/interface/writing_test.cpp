#include <gtest/gtest.h>

#include <numeric>
#include <ostream>

#include "kelp/input/quill/quill.hpp"
#include "support/comparison.hpp"
#include "support/printing.hpp"

namespace kelp::input::quill {

namespace {

/// One job that scans a distance; its geometry has paths as well as atoms.
QuillInput water_scan(GeometryKind kind) {
  return {
      {{"opt"},
       {"model", HeaderCommandKind::Assignment, "m1"},
       {"scan", HeaderCommandKind::ParameterList, std::nullopt, {{"steps", "10"}, {"relaxed"}}}},
      {kind,
       0,
       1,
       true,
       {{"O", 0.0, 0.0, 0.1173}, {"H", 0.0, 0.7572, -0.4692}},
       {"traj.xyz", "other.xyz"}},
      {{PostCommandKind::BondConstraint, {1, 2}},
       {PostCommandKind::Scan, {1, 2}, 1.5, 10},
       {PostCommandKind::PostFile, {}, {}, {}, "out.dat"}}};
}

struct WholeRow {
  const char* name;
  GeometryKind kind;
  std::string coordinates;
};

void PrintTo(const WholeRow& row, std::ostream* out) { *out << row.name; }

class AWholeInput : public testing::TestWithParam<WholeRow> {};

TEST_P(AWholeInput, TakesTheCanonicalForm) {
  EXPECT_EQ(water_scan(GetParam().kind).to_string(),
            "#opt\n"
            "#model = m1\n"
            "#scan(steps=10, relaxed)\n"
            "\n"
            "0 1\n" +
                GetParam().coordinates +
                "\n"
                "B 1 2\n"
                "S 1 2 1.5 10\n"
                "POST out.dat\n");
}

const WholeRow whole_rows[] = {
    {"WithoutCoordinates", GeometryKind::None, ""},
    {"WithItsAtoms", GeometryKind::Atoms,
     "O        0.000000      0.000000      0.117300\n"
     "H        0.000000      0.757200     -0.469200\n"},
    {"WithEveryPathInPlaceOfTheAtoms", GeometryKind::XyzFile,
     "XYZ traj.xyz\n"
     "XYZ other.xyz\n"},
    {"WithATrajectorysFirstPathInPlaceOfTheAtoms", GeometryKind::XyzTrajectory,
     "XYZTRAJ traj.xyz\n"},
};

INSTANTIATE_TEST_SUITE_P(Table, AWholeInput, testing::ValuesIn(whole_rows),
                         [](const auto& row) { return std::string(row.param.name); });

TEST(Writing, AnEmptyDocumentIsTheEmptyText) { EXPECT_EQ(QuillInput().to_string(), ""); }

TEST(Writing, LeavesTheDocumentAsItIsAndGivesTheSameTextAgain) {
  const QuillInput input = water_scan(GeometryKind::Atoms);
  const std::string first = input.to_string();
  EXPECT_EQ(input.to_string(), first);
  EXPECT_EQ(input, water_scan(GeometryKind::Atoms));
}

/// One coordinate section in its four surroundings.
struct SectionsRow {
  const char* name;
  GeometryBlock geometry;
  std::string_view alone;
  std::string_view after_commands;
  std::string_view before_post_lines;
  std::string_view between_both;
};

void PrintTo(const SectionsRow& row, std::ostream* out) { *out << row.name; }

const SectionsRow sections_rows[] = {
    {"NoCoordinates",  //
     {},
     "",
     "#opt\n#freq\n",
     "B 1 2\nend\n",
     "#opt\n#freq\n\nB 1 2\nend\n"},
    {"UnusedCoordinates",
     {GeometryKind::None, 3, 4, false, {{"H", 0.0, 0.0, 0.0}}, {"a.xyz"}},
     "",
     "#opt\n#freq\n",
     "B 1 2\nend\n",
     "#opt\n#freq\n\nB 1 2\nend\n"},
    {"ChargeAndMultiplicity",
     {GeometryKind::None, 0, 1, true},
     "0 1\n",
     "#opt\n#freq\n\n0 1\n",
     "0 1\n\nB 1 2\nend\n",
     "#opt\n#freq\n\n0 1\n\nB 1 2\nend\n"},
    {"NoAtoms",
     {GeometryKind::Atoms},
     "",
     "#opt\n#freq\n\n",
     "\nB 1 2\nend\n",
     "#opt\n#freq\n\n\nB 1 2\nend\n"},
    {"NoAtomsButChargeAndMultiplicity",
     {GeometryKind::Atoms, -1, 2, true},
     "-1 2\n",
     "#opt\n#freq\n\n-1 2\n",
     "-1 2\n\nB 1 2\nend\n",
     "#opt\n#freq\n\n-1 2\n\nB 1 2\nend\n"},
    {"Atoms",
     {GeometryKind::Atoms, 0, 1, false, {{"H", 1.0, 2.0, 3.0}}},
     "H        1.000000      2.000000      3.000000\n",
     "#opt\n#freq\n\nH        1.000000      2.000000      3.000000\n",
     "H        1.000000      2.000000      3.000000\n\nB 1 2\nend\n",
     "#opt\n#freq\n\nH        1.000000      2.000000      3.000000\n\nB 1 2\nend\n"},
    {"NoXyzFiles",
     {GeometryKind::XyzFile},
     "",
     "#opt\n#freq\n\n",
     "\nB 1 2\nend\n",
     "#opt\n#freq\n\n\nB 1 2\nend\n"},
    {"XyzFiles",
     {GeometryKind::XyzFile, 0, 1, false, {}, {"a", "b"}},
     "XYZ a\nXYZ b\n",
     "#opt\n#freq\n\nXYZ a\nXYZ b\n",
     "XYZ a\nXYZ b\n\nB 1 2\nend\n",
     "#opt\n#freq\n\nXYZ a\nXYZ b\n\nB 1 2\nend\n"},
    {"NoTrajectory",
     {GeometryKind::XyzTrajectory},
     "XYZTRAJ\n",
     "#opt\n#freq\n\nXYZTRAJ\n",
     "XYZTRAJ\n\nB 1 2\nend\n",
     "#opt\n#freq\n\nXYZTRAJ\n\nB 1 2\nend\n"},
    {"UnknownKindCountsAsPresent",
     {GeometryKind{4}},
     "",
     "#opt\n#freq\n\n",
     "\nB 1 2\nend\n",
     "#opt\n#freq\n\n\nB 1 2\nend\n"},
    {"NegativeKindCountsAsPresent",
     {GeometryKind{-1}},
     "",
     "#opt\n#freq\n\n",
     "\nB 1 2\nend\n",
     "#opt\n#freq\n\n\nB 1 2\nend\n"},
    {"UnknownKindWithChargeAndMultiplicity",
     {GeometryKind{4}, 0, 1, true},
     "0 1\n",
     "#opt\n#freq\n\n0 1\n",
     "0 1\n\nB 1 2\nend\n",
     "#opt\n#freq\n\n0 1\n\nB 1 2\nend\n"},
};

const std::vector<HeaderCommand> two_commands = {{"opt"}, {"freq"}};
const std::vector<PostCommand> two_post_lines = {{PostCommandKind::BondConstraint, {1, 2}},
                                                 {PostCommandKind::Raw, {}, {}, {}, {}, "end"}};

class Sections : public testing::TestWithParam<SectionsRow> {};

TEST_P(Sections, AreSeparatedByOneEmptyLine) {
  const SectionsRow& row = GetParam();
  EXPECT_EQ((QuillInput{{}, row.geometry, {}}.to_string()), row.alone);
  EXPECT_EQ((QuillInput{two_commands, row.geometry, {}}.to_string()), row.after_commands);
  EXPECT_EQ((QuillInput{{}, row.geometry, two_post_lines}.to_string()), row.before_post_lines);
  EXPECT_EQ((QuillInput{two_commands, row.geometry, two_post_lines}.to_string()), row.between_both);
}

INSTANTIATE_TEST_SUITE_P(Table, Sections, testing::ValuesIn(sections_rows),
                         [](const auto& row) { return std::string(row.param.name); });

TEST(Writing, APostProcessingLineOfAnUnknownKindIsAnEmptyLine) {
  const QuillInput input{{},
                         {},
                         {{PostCommandKind::AtomConstraint, {1}},
                          {PostCommandKind{7}, {1}, 1.0, 1, "file", "text"},
                          {PostCommandKind::AtomConstraint, {2}}}};
  EXPECT_EQ(input.to_string(), "C 1\n\nC 2\n");
}

TEST(Writing, AnUnknownKindAloneIsAnEmptyLineThatCountsAsASection) {
  EXPECT_EQ((QuillInput{{{"opt"}}, {}, {{PostCommandKind{-1}}}}.to_string()), "#opt\n\n\n");
}

TEST(Writing, StoredStringsGoOutByteForByte) {
  std::string bytes(256, '\0');
  std::iota(bytes.begin(), bytes.end(), '\0');
  const QuillInput input{{{bytes},
                          {bytes, HeaderCommandKind::Assignment, bytes},
                          {bytes, HeaderCommandKind::ParameterList, {}, {{bytes, bytes}, {bytes}}}},
                         {GeometryKind::Atoms, 0, 1, false, {{bytes, 0.0, 0.0, 0.0}}, {}},
                         {{PostCommandKind::PostFile, {}, {}, {}, bytes},
                          {PostCommandKind::Raw, {}, {}, {}, {}, bytes}}};
  const std::string atom = bytes + "      0.000000      0.000000      0.000000\n";
  EXPECT_EQ(input.to_string(), "#" + bytes + "\n#" + bytes + " = " + bytes + "\n#" + bytes + "(" +
                                   bytes + "=" + bytes + ", " + bytes + ")\n\n" + atom + "\nPOST " +
                                   bytes + "\n" + bytes + "\n");
}

TEST(Writing, AWholeInputConsistsOfItsPieces) {
  const QuillInput input = water_scan(GeometryKind::Atoms);
  std::string pieces;
  for (const HeaderCommand& command : input.commands) pieces += to_string(command) + "\n";
  pieces += "\n" + to_string(input.geometry) + "\n";
  for (const PostCommand& command : input.post_commands) pieces += to_string(command) + "\n";
  EXPECT_EQ(input.to_string(), pieces);
}

TEST(Writing, AnInputOfAnySizeIsWrittenWhole) {
  constexpr std::size_t count = 3000;
  const AtomRecord atom{"Xx", -123456789.0, 1.0, 1e15};
  const QuillInput input{
      std::vector<HeaderCommand>(count, HeaderCommand{"opt"}),
      {GeometryKind::Atoms, 0, 1, false, std::vector<AtomRecord>(count, atom), {}},
      std::vector<PostCommand>(count, {PostCommandKind::BondConstraint, {-2147483647, 1}})};
  std::string expected;
  for (std::size_t i = 0; i < count; ++i) expected += "#opt\n";
  expected += "\n";
  for (std::size_t i = 0; i < count; ++i)
    expected += "Xx -123456789.000000      1.0000001000000000000000.000000\n";
  expected += "\n";
  for (std::size_t i = 0; i < count; ++i) expected += "B -2147483647 1\n";
  EXPECT_EQ(input.to_string(), expected);
}

}  // namespace

}  // namespace kelp::input::quill
