#include "quill-inp/command_line/post_options.hpp"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

#include "quill-inp/process/trouble.hpp"
#include "support/comparison.hpp"
#include "support/printing.hpp"

namespace kelp::input::quill::tool {
namespace {

struct Row {
  std::string_view name;
  std::string option;
  std::string text;
  PostCommand command;
};

class PostArgument : public testing::TestWithParam<Row> {};

PostCommand scan(std::vector<std::int32_t> atoms, double value, std::int32_t steps) {
  return {PostCommandKind::Scan, std::move(atoms), value, steps};
}

const Row rows[] = {
    {"Atom", "--atom", "7", {PostCommandKind::AtomConstraint, {7}}},
    {"Bond", "--bond", "1,2", {PostCommandKind::BondConstraint, {1, 2}}},
    {"Angle", "--angle", "1,2,3", {PostCommandKind::AngleConstraint, {1, 2, 3}}},
    {"Dihedral", "--dihedral", "1,2,3,4", {PostCommandKind::DihedralConstraint, {1, 2, 3, 4}}},
    {"AnyNumberIsTaken", "--bond", "-5,+0", {PostCommandKind::BondConstraint, {-5, 0}}},
    {"LargestNumbers",
     "--bond",
     "-2147483648,2147483647",
     {PostCommandKind::BondConstraint, {-2147483647 - 1, 2147483647}}},
    {"ScanOfABond", "--scan", "1,2:1.5:10", scan({1, 2}, 1.5, 10)},
    {"ScanOfAnAngle", "--scan", "1,2,3:-90:1", scan({1, 2, 3}, -90.0, 1)},
    {"ScanOfADihedral", "--scan", "1,2,3,4:1d2:0", scan({1, 2, 3, 4}, 100.0, 0)},
    {"File",
     "--post",
     "my file.dat",
     {PostCommandKind::PostFile, {}, std::nullopt, std::nullopt, "my file.dat"}},
    {"Text",
     "--raw",
     " B 1 2 ",
     {PostCommandKind::Raw, {}, std::nullopt, std::nullopt, {}, " B 1 2 "}},
};

TEST_P(PostArgument, BecomesALine) {
  EXPECT_EQ(parse_post_argument(GetParam().option, GetParam().text), GetParam().command);
}

INSTANTIATE_TEST_SUITE_P(Table, PostArgument, testing::ValuesIn(rows),
                         [](const auto& row) { return std::string(row.param.name); });

struct BadRow {
  std::string_view name;
  std::string option;
  std::string text;
  std::string complaint;
};

class BadPostArgument : public testing::TestWithParam<BadRow> {};

const std::string scan_form =
    "--scan takes two to four atom numbers, a value and a number of steps, such as '1,2:1.5:10', "
    "not ";

const BadRow bad_rows[] = {
    {"NoAtom", "--atom", "", "--atom takes an atom number, such as '1', not ''"},
    {"TwoAtomsForOne", "--atom", "1,2", "--atom takes an atom number, such as '1', not '1,2'"},
    {"OneAtomForTwo", "--bond", "1", "--bond takes two atom numbers, such as '1,2', not '1'"},
    {"ThreeAtomsForTwo", "--bond", "1,2,3",
     "--bond takes two atom numbers, such as '1,2', not '1,2,3'"},
    {"NoNumber", "--bond", "1,x", "--bond takes two atom numbers, such as '1,2', not '1,x'"},
    {"NothingAfterTheComma", "--bond", "1,",
     "--bond takes two atom numbers, such as '1,2', not '1,'"},
    {"BlankBeforeANumber", "--bond", "1, 2",
     "--bond takes two atom numbers, such as '1,2', not '1, 2'"},
    {"NumberTooLarge", "--bond", "1,2147483648",
     "--bond takes two atom numbers, such as '1,2', not '1,2147483648'"},
    {"TwoAtomsForAnAngle", "--angle", "1,2",
     "--angle takes three atom numbers, such as '1,2,3', not '1,2'"},
    {"FiveAtomsForADihedral", "--dihedral", "1,2,3,4,5",
     "--dihedral takes four atom numbers, such as '1,2,3,4', not '1,2,3,4,5'"},
    {"ScanOfOneAtom", "--scan", "1:1.5:10", scan_form + "'1:1.5:10'"},
    {"ScanOfFiveAtoms", "--scan", "1,2,3,4,5:1.5:10", scan_form + "'1,2,3,4,5:1.5:10'"},
    {"ScanWithoutSteps", "--scan", "1,2:1.5", scan_form + "'1,2:1.5'"},
    {"ScanWithAPartTooMany", "--scan", "1,2:1.5:10:2", scan_form + "'1,2:1.5:10:2'"},
    {"ScanToNoNumber", "--scan", "1,2:x:10", scan_form + "'1,2:x:10'"},
    {"ScanInHalfSteps", "--scan", "1,2:1.5:2.5", scan_form + "'1,2:1.5:2.5'"},
    {"ScanOfNoAtoms", "--scan", "1,x:1.5:10", scan_form + "'1,x:1.5:10'"},
};

TEST_P(BadPostArgument, IsRefusedWithTheForm) {
  try {
    parse_post_argument(GetParam().option, GetParam().text);
    FAIL() << "no exception";
  } catch (const UsageError& error) {
    EXPECT_EQ(error.what(), GetParam().complaint);
  }
}

INSTANTIATE_TEST_SUITE_P(Table, BadPostArgument, testing::ValuesIn(bad_rows),
                         [](const auto& row) { return std::string(row.param.name); });

TEST(Integer, IsTakenOrRefusedByName) {
  EXPECT_EQ(parse_integer("--charge", "-1"), -1);
  EXPECT_THROW(parse_integer("--charge", "1.0"), UsageError);
  EXPECT_THROW(parse_integer("--charge", ""), UsageError);
}

}  // namespace
}  // namespace kelp::input::quill::tool
