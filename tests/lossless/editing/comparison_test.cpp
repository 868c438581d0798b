#include "kelp/input/quill/lossless/comparison.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <limits>

#include "kelp/input/quill/lossless/wording.hpp"

namespace kelp::input::quill::lossless {

namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();

QuillInput sample() {
  QuillInput input;
  input.commands = {
      HeaderCommand("opt", HeaderCommandKind::ParameterList, std::nullopt, {{"a", "1"}, {"b"}}),
      HeaderCommand("model", HeaderCommandKind::Assignment, "m1")};
  input.geometry.kind = GeometryKind::Atoms;
  input.geometry.has_charge_and_multiplicity = true;
  input.geometry.atoms = {{"O", 0.0, 0.0, 0.5}, {"H", 1.0, -2.0, 3.0}};
  input.geometry.xyz_files = {"a.xyz"};
  input.post_commands = {
      PostCommand(PostCommandKind::Scan, {1, 2}, 1.5, 10, "", "S 1 2 1.5 10"),
      PostCommand(PostCommandKind::PostFile, {}, std::nullopt, std::nullopt, "out"),
      PostCommand(PostCommandKind::Raw, {}, std::nullopt, std::nullopt, "", "free")};
  return input;
}

struct Row {
  std::string_view name;
  std::function<void(QuillInput&)> change;
  std::vector<std::string> words;
  LineRole role = LineRole::Blank;
  std::optional<std::size_t> index = std::nullopt;
};

void PrintTo(const Row& row, std::ostream* out) { *out << row.name; }

const Row rows[] = {
    {"Nothing", [](QuillInput&) {}, {}},
    {"ACommandMore",
     [](QuillInput& input) { input.commands.emplace_back("sp"); },
     {"the number of header commands is 3 instead of 2"}},
    {"ACommandLess",
     [](QuillInput& input) { input.commands.pop_back(); },
     {"the number of header commands is 1 instead of 2"}},
    {"CommandName",
     [](QuillInput& input) { input.commands[1].name = "Model"; },
     {"the name of command 2 is 'Model' instead of 'model'"},
     LineRole::Command,
     1},
    {"CommandKind",
     [](QuillInput& input) { input.commands[0].kind = HeaderCommandKind::Flag; },
     {"command 1 is a flag instead of a parameter list"},
     LineRole::Command,
     0},
    {"UnknownCommandKind",
     [](QuillInput& input) { input.commands[1].kind = HeaderCommandKind{9}; },
     {"command 2 is of unknown kind instead of an assignment"},
     LineRole::Command,
     1},
    {"CommandValue",
     [](QuillInput& input) { input.commands[1].value = ""; },
     {"the value of command 2 is '' instead of 'm1'"},
     LineRole::Command,
     1},
    {"NoCommandValue",
     [](QuillInput& input) { input.commands[1].value.reset(); },
     {"the value of command 2 is absent instead of 'm1'"},
     LineRole::Command,
     1},
    {"FirstParameter",
     [](QuillInput& input) {
       input.commands[0].parameters[0] = {"A", "2"};
     },
     {"the name of parameter 1 of command 1 is 'A' instead of 'a'",
      "the value of parameter 1 of command 1 is '2' instead of '1'"},
     LineRole::Command,
     0},
    {"ParameterName",
     [](QuillInput& input) { input.commands[0].parameters[1].name = "c"; },
     {"the name of parameter 2 of command 1 is 'c' instead of 'b'"},
     LineRole::Command,
     0},
    {"ParameterValue",
     [](QuillInput& input) { input.commands[0].parameters[1].value = ""; },
     {"the value of parameter 2 of command 1 is '' instead of absent"},
     LineRole::Command,
     0},
    {"AParameterLess",
     [](QuillInput& input) { input.commands[0].parameters.pop_back(); },
     {"the number of parameters of command 1 is 1 instead of 2"},
     LineRole::Command,
     0},
    {"AParameterMore",
     [](QuillInput& input) { input.commands[0].parameters.emplace_back("c"); },
     {"the number of parameters of command 1 is 3 instead of 2"},
     LineRole::Command,
     0},
    {"AParameterOfAnAssignment",
     [](QuillInput& input) { input.commands[1].parameters.emplace_back("c"); },
     {"the number of parameters of command 2 is 1 instead of 0"},
     LineRole::Command,
     1},
    {"Charge",
     [](QuillInput& input) { input.geometry.charge = -1; },
     {"the charge is -1 instead of 0"},
     LineRole::ChargeAndMultiplicity},
    {"Multiplicity",
     [](QuillInput& input) { input.geometry.multiplicity = 3; },
     {"the multiplicity is 3 instead of 1"},
     LineRole::ChargeAndMultiplicity},
    {"NoChargeLine",
     [](QuillInput& input) { input.geometry.has_charge_and_multiplicity = false; },
     {"the charge and multiplicity line is absent instead of present"},
     LineRole::ChargeAndMultiplicity},
    {"GeometryKind",
     [](QuillInput& input) { input.geometry.kind = GeometryKind::None; },
     {"the coordinate section is absent instead of a list of atoms"}},
    {"AnotherGeometryKind",
     [](QuillInput& input) { input.geometry.kind = GeometryKind::XyzFile; },
     {"the coordinate section is a list of XYZ references instead of a list of atoms"}},
    {"AThirdGeometryKind",
     [](QuillInput& input) { input.geometry.kind = GeometryKind::XyzTrajectory; },
     {"the coordinate section is a trajectory reference instead of a list of atoms"}},
    {"UnknownGeometryKind",
     [](QuillInput& input) { input.geometry.kind = GeometryKind{4}; },
     {"the coordinate section is of unknown kind instead of a list of atoms"}},
    {"AnAtomMore",
     [](QuillInput& input) {
       input.geometry.atoms.push_back({"A", 1, 2, 3});
     },
     {"the number of atoms is 3 instead of 2"}},
    {"AtomSymbol",
     [](QuillInput& input) { input.geometry.atoms[1].symbol = "h"; },
     {"the symbol of atom 2 is 'h' instead of 'H'"},
     LineRole::Atom,
     1},
    {"X",
     [](QuillInput& input) { input.geometry.atoms[1].x = 1.25; },
     {"x of atom 2 is 1.25 instead of 1"},
     LineRole::Atom,
     1},
    {"Y",
     [](QuillInput& input) { input.geometry.atoms[1].y = 2.0; },
     {"y of atom 2 is 2 instead of -2"},
     LineRole::Atom,
     1},
    {"Z",
     [](QuillInput& input) { input.geometry.atoms[0].z = infinity; },
     {"z of atom 1 is inf instead of 0.5"},
     LineRole::Atom,
     0},
    {"TheSignOfZero",
     [](QuillInput& input) { input.geometry.atoms[0].x = -0.0; },
     {"x of atom 1 is -0 instead of 0"},
     LineRole::Atom,
     0},
    {"TheLastBit",
     [](QuillInput& input) { input.geometry.atoms[1].z = std::nextafter(3.0, 4.0); },
     {"z of atom 2 is 3.0000000000000004 instead of 3"},
     LineRole::Atom,
     1},
    {"Path",
     [](QuillInput& input) { input.geometry.xyz_files[0] = ""; },
     {"the path of XYZ reference 1 is '' instead of 'a.xyz'"},
     LineRole::XyzReference,
     0},
    {"APathMore",
     [](QuillInput& input) { input.geometry.xyz_files.emplace_back("b"); },
     {"the number of paths is 2 instead of 1"}},
    {"APostLineLess",
     [](QuillInput& input) { input.post_commands.pop_back(); },
     {"the number of post-processing lines is 2 instead of 3"}},
    {"PostKind",
     [](QuillInput& input) { input.post_commands[1].kind = PostCommandKind::AngleConstraint; },
     {"post-processing line 2 is an angle constraint instead of a post file"},
     LineRole::PostCommand,
     1},
    {"PostKindAwayFromRaw",
     [](QuillInput& input) { input.post_commands[2].kind = PostCommandKind::AtomConstraint; },
     {"post-processing line 3 is an atom constraint instead of raw text"},
     LineRole::PostCommand,
     2},
    {"PostKindAndItsSourceLine",
     [](QuillInput& input) {
       input.post_commands[2].kind = PostCommandKind::AtomConstraint;
       input.post_commands[2].raw_text = "C 1";
     },
     {"post-processing line 3 is an atom constraint instead of raw text"},
     LineRole::PostCommand,
     2},
    {"UnknownPostKind",
     [](QuillInput& input) { input.post_commands[2].kind = PostCommandKind{-1}; },
     {"post-processing line 3 is a post-processing line of unknown kind instead of raw text"},
     LineRole::PostCommand,
     2},
    {"AtomNumbers",
     [](QuillInput& input) {
       input.post_commands[0].atom_indices = {2, -1};
     },
     {"the list of atom numbers of post-processing line 1 is 2 -1 instead of 1 2"},
     LineRole::PostCommand,
     0},
    {"NoAtomNumbers",
     [](QuillInput& input) { input.post_commands[0].atom_indices.clear(); },
     {"the list of atom numbers of post-processing line 1 is absent instead of 1 2"},
     LineRole::PostCommand,
     0},
    {"ScanValue",
     [](QuillInput& input) { input.post_commands[0].scan_value = 1.5000001; },
     {"the scan value of post-processing line 1 is 1.5000001 instead of 1.5"},
     LineRole::PostCommand,
     0},
    {"NoScanValue",
     [](QuillInput& input) { input.post_commands[0].scan_value.reset(); },
     {"the scan value of post-processing line 1 is absent instead of 1.5"},
     LineRole::PostCommand,
     0},
    {"AScanValueOfALineThatHasNone",
     [](QuillInput& input) { input.post_commands[2].scan_value = 1.5; },
     {"the scan value of post-processing line 3 is 1.5 instead of absent"},
     LineRole::PostCommand,
     2},
    {"ScanSteps",
     [](QuillInput& input) { input.post_commands[0].scan_steps = 11; },
     {"the number of steps of post-processing line 1 is 11 instead of 10"},
     LineRole::PostCommand,
     0},
    {"PostFile",
     [](QuillInput& input) { input.post_commands[1].post_file = "out "; },
     {"the path of post-processing line 2 is 'out ' instead of 'out'"},
     LineRole::PostCommand,
     1},
    {"RawText",
     [](QuillInput& input) { input.post_commands[2].raw_text = "Free"; },
     {"the text of post-processing line 3 is 'Free' instead of 'free'"},
     LineRole::PostCommand,
     2},
    {"TheSourceLineOfAnythingButRawText",
     [](QuillInput& input) {
       input.post_commands[0].raw_text = "s 1 2 1.5 10";
       input.post_commands[1].raw_text.clear();
     },
     {}},
};

/// The words for all that differs from the sample.
std::vector<std::string> words_of(const Comparison& comparison) {
  std::vector<std::string> all;
  for (const Difference& difference : comparison.differences) all.push_back(words(difference));
  return all;
}

class DocumentDifferences : public testing::TestWithParam<Row> {};

TEST_P(DocumentDifferences, AreNamedAndPlaced) {
  QuillInput found = sample();
  GetParam().change(found);
  const Comparison comparison = compare(sample(), found);
  EXPECT_EQ(words_of(comparison), GetParam().words);
  EXPECT_EQ(comparison.is_equal(), GetParam().words.empty());
  for (const Difference& difference : comparison.differences) {
    EXPECT_EQ(difference.part.role, GetParam().role);
    EXPECT_EQ(difference.part.index, GetParam().index);
  }
}

INSTANTIATE_TEST_SUITE_P(Table, DocumentDifferences, testing::ValuesIn(rows),
                         [](const auto& row) { return std::string(row.param.name); });

const double not_a_number = std::numeric_limits<double>::quiet_NaN();

QuillInput with_coordinate(double y) {
  QuillInput input;
  input.geometry.kind = GeometryKind::Atoms;
  input.geometry.atoms = {{"O", 0.0, 0.0, 0.0}, {"H", 1.0, y, 3.0}};
  return input;
}

QuillInput with_scan_value(double value) {
  QuillInput input;
  input.post_commands.emplace_back(PostCommandKind::Scan, std::vector<std::int32_t>{1, 2}, value,
                                   10);
  return input;
}

struct NumberRow {
  std::string_view name;
  double wanted;
  double found;
  double max_change;
  bool accepted;
  std::size_t count;
  double largest;
};

void PrintTo(const NumberRow& row, std::ostream* out) { *out << row.name; }

const NumberRow number_rows[] = {
    {"Same", 1.0, 1.0, 0.0, true, 0, 0.0},
    {"UpToTheLimit", 1.0, 1.25, 0.25, true, 1, 0.25},
    {"Downwards", 1.25, 1.0, 0.25, true, 1, 0.25},
    {"OverTheLimit", 1.0, 1.25, 0.125, false, 1, 0.25},
    {"AnyChangeWithoutALimit", 1.0, 1.25, 0.0, false, 1, 0.25},
    {"TheSignOfZeroWithinALimit", 0.0, -0.0, 1e-6, true, 1, 0.0},
    {"TheSignOfZeroWithoutALimit", 0.0, -0.0, 0.0, false, 1, 0.0},
    {"Infinities", infinity, infinity, 0.0, true, 0, 0.0},
    {"InfinitiesOfTwoSigns", infinity, -infinity, 1e300, false, 1, infinity},
    {"InfinityForANumber", 1e300, infinity, 1e300, false, 1, infinity},
    {"NaNs", not_a_number, not_a_number, 0.0, true, 0, 0.0},
    {"NaNsOfTwoSigns", not_a_number, -not_a_number, 1.0, false, 1, infinity},
    {"NaNForANumber", 1.0, not_a_number, 1.0, false, 1, infinity},
    {"ANumberForNaN", not_a_number, 1.0, 1.0, false, 1, infinity},
};

class NumberChange : public testing::TestWithParam<NumberRow> {
 protected:
  static void expect_measured(const Comparison& comparison) {
    EXPECT_EQ(comparison.is_equal(), GetParam().accepted);
    EXPECT_EQ(comparison.number_changes.count, GetParam().count);
    EXPECT_EQ(comparison.number_changes.largest, GetParam().largest);
  }
};

TEST_P(NumberChange, OfACoordinateIsMeasured) {
  expect_measured(compare(with_coordinate(GetParam().wanted), with_coordinate(GetParam().found),
                          GetParam().max_change));
}

TEST_P(NumberChange, OfAScanValueIsMeasured) {
  expect_measured(compare(with_scan_value(GetParam().wanted), with_scan_value(GetParam().found),
                          GetParam().max_change));
}

INSTANTIATE_TEST_SUITE_P(Table, NumberChange, testing::ValuesIn(number_rows),
                         [](const auto& row) { return std::string(row.param.name); });

}  // namespace

TEST(NumberChanges, AreCountedOverTheWholeDocument) {
  QuillInput found = sample();
  found.geometry.atoms[0].x += 0.25;
  found.geometry.atoms[1].y -= 0.5;
  found.geometry.atoms[1].z += 0.125;
  found.post_commands[0].scan_value = 1.75;
  const Comparison comparison = compare(sample(), found, 0.25);
  EXPECT_THAT(words_of(comparison), testing::ElementsAre("y of atom 2 is -2.5 instead of -2"));
  EXPECT_EQ(comparison.number_changes.count, 4U);
  EXPECT_EQ(comparison.number_changes.largest, 0.5);
}

TEST(DocumentDifferences, AreInTheOrderOfTheLines) {
  QuillInput found = sample();
  found.post_commands[2].raw_text = "x";
  found.post_commands.emplace_back();
  found.geometry.atoms.clear();
  found.geometry.charge = 1;
  found.commands.clear();
  EXPECT_THAT(
      words_of(compare(sample(), found)),
      testing::ElementsAre("the number of header commands is 0 instead of 2",
                           "the charge is 1 instead of 0", "the number of atoms is 0 instead of 2",
                           "the text of post-processing line 3 is 'x' instead of 'free'",
                           "the number of post-processing lines is 4 instead of 3"));
}

TEST(DocumentDifferences, NameTheTrajectory) {
  QuillInput wanted;
  wanted.geometry.kind = GeometryKind::XyzTrajectory;
  wanted.geometry.xyz_files = {"t"};
  QuillInput found = wanted;
  found.geometry.xyz_files = {"u"};
  const Comparison comparison = compare(wanted, found);
  ASSERT_EQ(comparison.differences.size(), 1U);
  EXPECT_EQ(words(comparison.differences[0]),
            "the path of trajectory reference 1 is 'u' instead of 't'");
  EXPECT_EQ(comparison.differences[0].part.role, LineRole::Trajectory);
}

}  // namespace kelp::input::quill::lossless
