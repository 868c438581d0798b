#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <numeric>
#include <string>
#include <vector>

#include "interface/written_piece.hpp"
#include "kelp/input/quill/writer.hpp"
#include "support/comparison.hpp"
#include "support/printing.hpp"

namespace kelp::input::quill {

namespace {

using namespace std::string_literals;
using namespace std::string_view_literals;

constexpr auto assignment = HeaderCommandKind::Assignment;
constexpr auto parameter_list = HeaderCommandKind::ParameterList;
constexpr auto atom_constraint = PostCommandKind::AtomConstraint;
constexpr auto bond_constraint = PostCommandKind::BondConstraint;
constexpr auto angle_constraint = PostCommandKind::AngleConstraint;
constexpr auto dihedral_constraint = PostCommandKind::DihedralConstraint;
constexpr auto scan = PostCommandKind::Scan;
constexpr auto post_file = PostCommandKind::PostFile;
constexpr auto raw = PostCommandKind::Raw;

using CommandRow = PieceRow<HeaderCommand>;

const CommandRow command_rows[] = {
    {"Flag", {"opt"}, "#opt"},
    {"FlagWithValueAndParameters", {"opt", HeaderCommandKind::Flag, "m1", {{"a", "b"}}}, "#opt"},
    {"FlagWithoutAName", {}, "#"},
    {"StoredHashIsDoubled", {"#opt"}, "##opt"},
    {"CaseAndBlanksStay", {" Opt "}, "# Opt "},
    {"Assignment", {"model", assignment, "m1"}, "#model = m1"},
    {"AssignmentWithoutAValue", {"name", assignment}, "#name = "},
    {"AssignmentOfAnEmptyValue", {"name", assignment, ""}, "#name = "},
    {"AssignmentWithParameters", {"model", assignment, "m1", {{"a", "b"}}}, "#model = m1"},
    {"AssignmentOfBlanksAndSigns", {"a=b", assignment, " x = (y), "}, "#a=b =  x = (y), "},
    {"ParameterList", {"scan", parameter_list, {}, {{"a", "1"}, {"b"}}}, "#scan(a=1, b)"},
    {"BareThenKeyed", {"scan", parameter_list, {}, {{"b"}, {"a", "1"}}}, "#scan(b, a=1)"},
    {"OneBareParameter", {"opt", parameter_list, {}, {{"tight"}}}, "#opt(tight)"},
    {"ThreeParameters", {"o", parameter_list, {}, {{"a"}, {"b"}, {"a"}}}, "#o(a, b, a)"},
    {"NoParameters", {"opt", parameter_list}, "#opt()"},
    {"NoParametersButAValue", {"opt", parameter_list, "m1"}, "#opt()"},
    {"ParametersAndAValue", {"opt", parameter_list, "m1", {{"a"}}}, "#opt(a)"},
    {"EmptyParameterValue", {"opt", parameter_list, {}, {{"name", ""}}}, "#opt(name=)"},
    {"EmptyParameterName", {"opt", parameter_list, {}, {{""}, {"", "1"}}}, "#opt(, =1)"},
    {"SeparatorInAValue", {"o", parameter_list, {}, {{"a", "1, 2"}, {"b"}}}, "#o(a=1, 2, b)"},
    {"ParenthesisInAValue", {"o", parameter_list, {}, {{"a", "f(x)"}, {")"}}}, "#o(a=f(x), ))"},
    {"QuotesStayAsTheyAre", {"o", parameter_list, {}, {{"'a\"", "\"b'"}}}, "#o('a\"=\"b')"},
    {"BlanksStayAsTheyAre", {"o", parameter_list, {}, {{" a ", " b "}}}, "#o( a = b )"},
    {"NulAndLineBreakStay", {"a\0b\n"s, assignment, "\r\n\xFF\0"s}, "#a\0b\n = \r\n\xFF\0"sv},
    {"KindBelowTheFirst", {"opt", HeaderCommandKind{-1}, "m1", {{"a"}}}, "#opt"},
    {"KindAboveTheLast", {"opt", HeaderCommandKind{3}, "m1", {{"a"}}}, "#opt"},
    {"GreatestKind", {"opt", HeaderCommandKind{greatest}, "m1", {{"a"}}}, "#opt"},
};

class HeaderCommandText : public testing::TestWithParam<CommandRow> {};

TEST_P(HeaderCommandText, IsAsWritten) { EXPECT_EQ(to_string(GetParam().piece), GetParam().text); }

INSTANTIATE_TEST_SUITE_P(Table, HeaderCommandText, testing::ValuesIn(command_rows),
                         name_of_row<HeaderCommand>);

/// Every field that any kind writes, so that each kind shows which ones it leaves out.
PostCommand filled(PostCommandKind kind) { return {kind, {3, 1, 2}, 1.5, 10, "out.dat", "free"}; }

using PostRow = PieceRow<PostCommand>;

const PostRow post_rows[] = {
    {"AtomConstraint", {atom_constraint, {7}}, "C 7"},
    {"BondConstraint", {bond_constraint, {1, 2}}, "B 1 2"},
    {"AngleConstraint", {angle_constraint, {1, 2, 3}}, "A 1 2 3"},
    {"DihedralConstraint", {dihedral_constraint, {1, 2, 3, 4}}, "D 1 2 3 4"},
    {"Scan", {scan, {1, 2}, 1.5, 10}, "S 1 2 1.5 10"},
    {"PostFile", {post_file, {}, {}, {}, "out.dat"}, "POST out.dat"},
    {"Raw", {raw, {}, {}, {}, {}, "anything goes"}, "anything goes"},
    {"AtomConstraintUsesAtomNumbersOnly", filled(atom_constraint), "C 3 1 2"},
    {"BondConstraintUsesAtomNumbersOnly", filled(bond_constraint), "B 3 1 2"},
    {"AngleConstraintUsesAtomNumbersOnly", filled(angle_constraint), "A 3 1 2"},
    {"DihedralConstraintUsesAtomNumbersOnly", filled(dihedral_constraint), "D 3 1 2"},
    {"ScanUsesNumbersOnly", filled(scan), "S 3 1 2 1.5 10"},
    {"PostFileUsesThePathOnly", filled(post_file), "POST out.dat"},
    {"RawUsesTheTextOnly", filled(raw), "free"},
    {"KindBelowTheFirst", filled(PostCommandKind{-1}), ""},
    {"KindAboveTheLast", filled(PostCommandKind{7}), ""},
    {"LeastKind", filled(PostCommandKind{least}), ""},
    {"GreatestKind", filled(PostCommandKind{greatest}), ""},
    {"AtomConstraintWithoutAtoms", {atom_constraint}, "C "},
    {"BondConstraintWithoutAtoms", {bond_constraint}, "B "},
    {"AngleConstraintWithoutAtoms", {angle_constraint}, "A "},
    {"DihedralConstraintWithoutAtoms", {dihedral_constraint}, "D "},
    {"ScanWithoutAnything", {scan}, "S "},
    {"ScanWithoutAtoms", {scan, {}, 1.5, 10}, "S  1.5 10"},
    {"ScanWithoutValueAndSteps", {scan, {1, 2}}, "S 1 2"},
    {"ScanWithoutSteps", {scan, {1, 2}, 1.5}, "S 1 2 1.5"},
    {"ScanWithoutAValue", {scan, {1, 2}, {}, 10}, "S 1 2 10"},
    {"ScanOfFourAtoms", {scan, {4, 3, 2, 1}, -180.0, 36}, "S 4 3 2 1 -180 36"},
    {"ScanOfManyAtoms", {scan, {1, 2, 3, 4, 5, 6}}, "S 1 2 3 4 5 6"},
    {"PostFileWithoutAPath", {post_file}, "POST "},
    {"PostFileWithBlanks", {post_file, {}, {}, {}, " my file.dat "}, "POST  my file.dat "},
    {"RawWithoutText", {raw}, ""},
    {"RawKeepsBlanksAndLineBreaks", {raw, {}, {}, {}, {}, " a\r\n\tb\n"}, " a\r\n\tb\n"},
    {"RawKeepsEveryByte", {raw, {}, {}, {}, {}, "\0\xFF\x80#\0"s}, "\0\xFF\x80#\0"sv},
    {"ConstraintOfTooManyAtoms", {atom_constraint, {1, 2, 3, 4, 5}}, "C 1 2 3 4 5"},
    {"ConstraintOfTooFewAtoms", {dihedral_constraint, {1}}, "D 1"},
    {"NegativeAtomNumbers", {bond_constraint, {-1, 0}}, "B -1 0"},
    {"GreatestNumbers", {bond_constraint, {greatest, least}}, "B 2147483647 -2147483648"},
    {"NumbersAreNotGrouped", {scan, {12345}, {}, 1234567}, "S 12345 1234567"},
    {"NegativeSteps", {scan, {1}, {}, -5}, "S 1 -5"},
    {"GreatestSteps", {scan, {1}, {}, greatest}, "S 1 2147483647"},
    {"ZeroStepsArePresent", {scan, {1}, {}, 0}, "S 1 0"},
    {"ZeroValueIsPresent", {scan, {1}, 0.0}, "S 1 0"},
    {"NegativeZeroKeepsItsSign", {scan, {1}, -0.0}, "S 1 -0"},
    {"WholeValueHasNoPoint", {scan, {1}, 2.0}, "S 1 2"},
    {"ValueHasSixDigits", {scan, {1}, 123456.7}, "S 1 123457"},
    {"LargeValueHasAnExponent", {scan, {1}, 1000000.0}, "S 1 1e+06"},
    {"SmallValueHasAnExponent", {scan, {1}, 0.00001}, "S 1 1e-05"},
    {"InfiniteValue", {scan, {1}, -infinity, 2}, "S 1 -inf 2"},
    {"ValueThatIsNotANumber", {scan, {1}, nan, 2}, "S 1 nan 2"},
};

class PostCommandText : public testing::TestWithParam<PostRow> {};

TEST_P(PostCommandText, IsAsWritten) { EXPECT_EQ(to_string(GetParam().piece), GetParam().text); }

INSTANTIATE_TEST_SUITE_P(Table, PostCommandText, testing::ValuesIn(post_rows),
                         name_of_row<PostCommand>);

/// "C", and each number after a blank.
std::string constraint_text(const std::vector<std::int32_t>& numbers) {
  std::string text = "C";
  for (const std::int32_t number : numbers) text += " " + std::to_string(number);
  return text;
}

TEST(PostCommandText, MayHaveAnyCountOfAtomNumbers) {
  std::vector<std::int32_t> numbers;
  while (numbers.size() < 300) {
    numbers.push_back(numbers.size() % 3 == 0 ? least : greatest);
    ASSERT_EQ(to_string(PostCommand(atom_constraint, numbers)), constraint_text(numbers));
  }
}

TEST(PostCommandText, MayHaveAHundredThousandAtomNumbers) {
  std::vector<std::int32_t> numbers(100'000);
  std::iota(numbers.begin(), numbers.end(), -50'000);
  EXPECT_EQ(to_string(PostCommand(atom_constraint, numbers)), constraint_text(numbers));
}

TEST(PostCommandText, IsThatOfTheLineAloneAfterLinesOfAnyLength) {
  const PostCommand commands[] = {
      {scan, {least, greatest}, -1.23456e-300, least},
      {scan, {1}, 0.5},
      {bond_constraint, {9, 10}},
      {atom_constraint},
      {post_file, {}, {}, {}, "out.dat"},
      {PostCommandKind{7}},
  };
  for (std::size_t length = 0; length < 1100; ++length) {
    const std::string before(length, 'x');
    for (const PostCommand& command : commands) {
      QuillInput input;
      input.post_commands = {PostCommand(raw, {}, {}, {}, {}, before), command};
      ASSERT_EQ(input.to_string(), before + "\n" + to_string(command) + "\n");
    }
  }
}

TEST(PostCommandText, MayBeOfAnyLength) {
  for (std::size_t length = 0; length < 1100; ++length) {
    const std::string text(length, 'x');
    ASSERT_EQ(to_string(PostCommand(raw, {}, {}, {}, {}, text)), text);
    ASSERT_EQ(to_string(PostCommand(post_file, {}, {}, {}, text)), "POST " + text);
  }
}

}  // namespace

}  // namespace kelp::input::quill
