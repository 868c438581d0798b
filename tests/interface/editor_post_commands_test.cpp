#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>
#include <string_view>
#include <utility>

#include "support/comparison.hpp"
#include "support/edit_case.hpp"
#include "support/printing.hpp"

namespace kelp::input::quill {

namespace {

using Kind = PostCommandKind;

constexpr int least = std::numeric_limits<int>::min();
constexpr int greatest = std::numeric_limits<int>::max();

PostCommand raw(std::string line) { return {Kind::Raw, {}, {}, {}, {}, std::move(line)}; }

PostCommand post_file(std::string path) { return {Kind::PostFile, {}, {}, {}, std::move(path)}; }

/// Members that no kind uses together: what is added is not checked.
PostCommand inconsistent() { return {Kind{9}, {1}, std::nan("7"), 0, "a.dat", "text"}; }

class PostCommands : public testing::TestWithParam<EditCase> {};

TEST_P(PostCommands, GiveTheDocument) { expect_edit(GetParam()); }

const EditCase constraint_rows[] = {
    {"AnAtomConstraintHasOneIndex", with_post_commands({}),
     [](InputEditor& editor) { editor.add_atom_constraint(4); },
     with_post_commands({{Kind::AtomConstraint, {4}}})},
    {"ABondConstraintHasTwoIndices", with_post_commands({}),
     [](InputEditor& editor) { editor.add_bond_constraint(2, 1); },
     with_post_commands({{Kind::BondConstraint, {2, 1}}})},
    {"AnAngleConstraintHasThreeIndices", with_post_commands({}),
     [](InputEditor& editor) { editor.add_angle_constraint(3, 1, 2); },
     with_post_commands({{Kind::AngleConstraint, {3, 1, 2}}})},
    {"ADihedralConstraintHasFourIndices", with_post_commands({}),
     [](InputEditor& editor) { editor.add_dihedral_constraint(4, 2, 1, 3); },
     with_post_commands({{Kind::DihedralConstraint, {4, 2, 1, 3}}})},
    {"IndicesAreNotChecked", with_post_commands({}),
     [](InputEditor& editor) {
       editor.add_atom_constraint(-5);
       editor.add_atom_constraint(0);
       editor.add_bond_constraint(1, 1);
       editor.add_angle_constraint(least, 0, greatest);
       editor.add_dihedral_constraint(99, -99, 99, 0);
     },
     with_post_commands({{Kind::AtomConstraint, {-5}},
                         {Kind::AtomConstraint, {0}},
                         {Kind::BondConstraint, {1, 1}},
                         {Kind::AngleConstraint, {least, 0, greatest}},
                         {Kind::DihedralConstraint, {99, -99, 99, 0}}})},
    {"EqualConstraintsAreRepeated", with_post_commands({{Kind::BondConstraint, {1, 2}}}),
     [](InputEditor& editor) {
       editor.add_bond_constraint(1, 2);
       editor.add_bond_constraint(1, 2);
     },
     with_post_commands({{Kind::BondConstraint, {1, 2}},
                         {Kind::BondConstraint, {1, 2}},
                         {Kind::BondConstraint, {1, 2}}})},
    {"ConstraintsComeLast", with_post_commands({raw("first"), post_file("a.dat")}),
     [](InputEditor& editor) { editor.add_atom_constraint(4); },
     with_post_commands({raw("first"), post_file("a.dat"), {Kind::AtomConstraint, {4}}})},
};

INSTANTIATE_TEST_SUITE_P(Constraints, PostCommands, testing::ValuesIn(constraint_rows),
                         row_name<EditCase>);

const EditCase scan_rows[] = {
    {"AScanHasIndicesAValueAndSteps", with_post_commands({raw("first")}),
     [](InputEditor& editor) {
       editor.add_scan({2, 1}, 1.5, 10);
     },
     with_post_commands({raw("first"), {Kind::Scan, {2, 1}, 1.5, 10}})},
    {"AScanWithoutIndicesHasValueAndStepsAllTheSame", with_post_commands({}),
     [](InputEditor& editor) { editor.add_scan({}, 0.0, 0); },
     with_post_commands({{Kind::Scan, {}, 0.0, 0}})},
    {"AScanOfManyIndicesKeepsThemAll", with_post_commands({}),
     [](InputEditor& editor) {
       editor.add_scan({5, 4, 3, 2, 1, 0, -1}, 180.0, 36);
     },
     with_post_commands({{Kind::Scan, {5, 4, 3, 2, 1, 0, -1}, 180.0, 36}})},
    {"ValueAndStepsOfAScanAreNotChecked", with_post_commands({}),
     [](InputEditor& editor) {
       editor.add_scan({1, 2}, -0.0, least);
       editor.add_scan({1, 2}, std::nan("7"), -1);
     },
     with_post_commands(
         {{Kind::Scan, {1, 2}, -0.0, least}, {Kind::Scan, {1, 2}, std::nan("7"), -1}})},
    {"EqualScansAreRepeated", with_post_commands({{Kind::Scan, {1, 2}, 1.5, 10}}),
     [](InputEditor& editor) {
       editor.add_scan({1, 2}, 1.5, 10);
     },
     with_post_commands({{Kind::Scan, {1, 2}, 1.5, 10}, {Kind::Scan, {1, 2}, 1.5, 10}})},
};

INSTANTIATE_TEST_SUITE_P(Scans, PostCommands, testing::ValuesIn(scan_rows), row_name<EditCase>);

const EditCase post_file_rows[] = {
    {"APostFileIsAddedNextToEarlierOnes", with_post_commands({}),
     [](InputEditor& editor) {
       editor.add_atom_constraint(4);
       editor.set_post_file("a.dat");
       editor.set_post_file("b.dat");
     },
     with_post_commands({{Kind::AtomConstraint, {4}}, post_file("a.dat"), post_file("b.dat")})},
    {"APostFileIsRepeated", with_post_commands({post_file("a.dat")}),
     [](InputEditor& editor) { editor.set_post_file("a.dat"); },
     with_post_commands({post_file("a.dat"), post_file("a.dat")})},
    {"ThePathOfAPostFileIsNotLookedAt", with_post_commands({}),
     [](InputEditor& editor) {
       editor.set_post_file(" two words ");
       editor.set_post_file(std::string_view());
       editor.set_post_file(std::string_view("a.data", 5));
     },
     with_post_commands({post_file(" two words "), post_file(""), post_file("a.dat")})},
};

INSTANTIATE_TEST_SUITE_P(PostFiles, PostCommands, testing::ValuesIn(post_file_rows),
                         row_name<EditCase>);

const EditCase whole_command_rows[] = {
    {"AMovedCommandIsAppendedAsItIs", with_post_commands({raw("first")}),
     [](InputEditor& editor) { editor.add_post_command(inconsistent()); },
     with_post_commands({raw("first"), inconsistent()})},
    {"ACopiedCommandIsAppendedAsItIs", with_post_commands({raw("first")}),
     [](InputEditor& editor) {
       const PostCommand command = inconsistent();
       editor.add_post_command(command);
       EXPECT_EQ(command, inconsistent());
     },
     with_post_commands({raw("first"), inconsistent()})},
    {"ClearingRemovesEveryCommand",
     with_post_commands({raw("first"), {Kind::BondConstraint, {1, 2}}, inconsistent()}),
     [](InputEditor& editor) { editor.clear_post_commands(); }, with_post_commands({})},
    {"ClearingAnEmptyListDoesNothing", with_post_commands({}),
     [](InputEditor& editor) { editor.clear_post_commands(); }, with_post_commands({})},
    {"AClearedListStartsAfresh", with_post_commands({raw("first"), post_file("a.dat")}),
     [](InputEditor& editor) {
       editor.clear_post_commands();
       editor.add_bond_constraint(1, 2);
     },
     with_post_commands({{Kind::BondConstraint, {1, 2}}})},
};

INSTANTIATE_TEST_SUITE_P(WholeCommands, PostCommands, testing::ValuesIn(whole_command_rows),
                         row_name<EditCase>);

TEST(PostCommands, AreMovedWhenTheyMayBe) {
  PostCommand command{Kind::BondConstraint, {1, 2}};
  const int* const first = command.atom_indices.data();
  InputEditor editor{QuillInput()};
  editor.add_post_command(std::move(command));
  EXPECT_EQ(editor.document().post_commands.front().atom_indices.data(), first);
}

TEST(PostCommands, AreWrittenEachWithTheLetterOfItsKind) {
  InputEditor editor{QuillInput()};
  editor.add_atom_constraint(4);
  editor.add_bond_constraint(2, 1);
  editor.add_angle_constraint(1, 2, 3);
  editor.add_dihedral_constraint(1, 2, 3, 4);
  editor.add_scan({1, 2}, 1.5, 10);
  editor.set_post_file("out.dat");
  EXPECT_EQ(editor.to_string(), "C 4\nB 2 1\nA 1 2 3\nD 1 2 3 4\nS 1 2 1.5 10\nPOST out.dat\n");
}

}  // namespace

}  // namespace kelp::input::quill
