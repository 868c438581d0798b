#include <gtest/gtest.h>

#include <functional>
#include <ostream>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

#include "kelp/core/geometry.hpp"
#include "support/comparison.hpp"
#include "support/edit_case.hpp"
#include "support/printing.hpp"

namespace kelp::input::quill {

namespace {

static_assert(!std::is_polymorphic_v<InputBuilder>);
static_assert(std::is_default_constructible_v<InputBuilder>);
static_assert(std::is_copy_constructible_v<InputBuilder>);
static_assert(std::is_copy_assignable_v<InputBuilder>);
static_assert(std::is_nothrow_move_constructible_v<InputBuilder>);
static_assert(std::is_nothrow_move_assignable_v<InputBuilder>);
static_assert(sizeof(InputBuilder) == sizeof(QuillInput));
static_assert(
    std::is_same_v<decltype(std::declval<InputBuilder&>().document()), const QuillInput&>);
static_assert(
    std::is_same_v<decltype(std::declval<const InputBuilder&>().document()), const QuillInput&>);
static_assert(std::is_same_v<decltype(std::declval<InputBuilder>().document()), QuillInput>);
static_assert(noexcept(std::declval<const InputBuilder&>().document()));

using Post = PostCommandKind;

const AtomRecord oxygen{"O", 0.0, 0.0, 0.1173};
const kelp::core::Geometry odd_molecule{{{"cl", -0.0, 1e300, 0.1}, {"", 1.0, 2.0, 3.0}}};
const std::vector<AtomRecord> odd_atoms = {{"cl", -0.0, 1e300, 0.1}, {"", 1.0, 2.0, 3.0}};

/// Members that contradict each other: what is added is not checked.
const HeaderCommand any_command{" #OPT", HeaderCommandKind::Flag, "stray", {{"tight"}}};
const PostCommand any_post_command{Post{9}, {1}, 0.5, 0, "a.dat", "text"};

/// One call on an empty builder, and the document that it makes.
struct BuildCase {
  std::string_view name;
  std::function<InputBuilder&(InputBuilder&)> build;
  QuillInput document;
};

void PrintTo(const BuildCase& row, std::ostream* out) { *out << row.name; }

class Build : public testing::TestWithParam<BuildCase> {};

TEST_P(Build, MakesTheDocumentAndReturnsTheBuilder) {
  InputBuilder builder;
  InputBuilder& result = GetParam().build(builder);
  EXPECT_EQ(&result, &builder);
  EXPECT_EQ(builder.document(), GetParam().document);
}

QuillInput headed(HeaderCommand command) { return {{std::move(command)}}; }

QuillInput placed(GeometryBlock geometry) { return {{}, std::move(geometry)}; }

QuillInput followed(PostCommand command) { return {{}, {}, {std::move(command)}}; }

const BuildCase header_rows[] = {
    {"ATask", [](InputBuilder& b) -> InputBuilder& { return b.set_task(" Opt", {{"tight"}}); },
     headed(list(" Opt", {{"tight"}}))},
    {"ATaskWithoutParameters", [](InputBuilder& b) -> InputBuilder& { return b.set_task("freq"); },
     headed(flag("freq"))},
    {"ATaskParameter",
     [](InputBuilder& b) -> InputBuilder& {
       return b.set_task_parameter(" Opt", " MaxIter ", " 50");
     },
     headed(list(" Opt", {{" MaxIter ", " 50"}}))},
    {"AModel", [](InputBuilder& b) -> InputBuilder& { return b.set_model(" m1"); },
     headed(assignment("model", " m1"))},
    {"ADevice", [](InputBuilder& b) -> InputBuilder& { return b.set_device("gpu:0"); },
     headed(assignment("device", "gpu:0"))},
    {"AnAssignment", [](InputBuilder& b) -> InputBuilder& { return b.set_assignment("Basis", ""); },
     headed(assignment("Basis", ""))},
    {"AFlag", [](InputBuilder& b) -> InputBuilder& { return b.set_flag("#Freq"); },
     headed(flag("#Freq"))},
    {"AMovedCommand",
     [](InputBuilder& b) -> InputBuilder& { return b.add_command(HeaderCommand(any_command)); },
     headed(any_command)},
    {"ACopiedCommand", [](InputBuilder& b) -> InputBuilder& { return b.add_command(any_command); },
     headed(any_command)},
};

INSTANTIATE_TEST_SUITE_P(Headers, Build, testing::ValuesIn(header_rows), row_name<BuildCase>);

const BuildCase geometry_rows[] = {
    {"AChargeAndAMultiplicity",
     [](InputBuilder& b) -> InputBuilder& { return b.set_charge_and_multiplicity(-7, 0); },
     placed({GeometryKind::None, -7, 0, true})},
    {"NoChargeAndNoMultiplicity",
     [](InputBuilder& b) -> InputBuilder& {
       return b.set_charge_and_multiplicity(-1, 2).clear_charge_and_multiplicity();
     },
     QuillInput()},
    {"AnAtom", [](InputBuilder& b) -> InputBuilder& { return b.add_atom(oxygen); },
     placed({GeometryKind::Atoms, 0, 1, false, {oxygen}})},
    {"ACoreAtom",
     [](InputBuilder& b) -> InputBuilder& { return b.add_atom(odd_molecule.atoms[0]); },
     placed({GeometryKind::Atoms, 0, 1, false, {odd_atoms[0]}})},
    {"AGeometry", [](InputBuilder& b) -> InputBuilder& { return b.set_geometry(odd_atoms); },
     placed({GeometryKind::Atoms, 0, 1, false, odd_atoms})},
    {"ACoreGeometry", [](InputBuilder& b) -> InputBuilder& { return b.set_geometry(odd_molecule); },
     placed({GeometryKind::Atoms, 0, 1, false, odd_atoms})},
    {"XyzFiles",
     [](InputBuilder& b) -> InputBuilder& {
       return b.set_xyz_files({"b.xyz", "", "b.xyz"});
     },
     placed({GeometryKind::XyzFile, 0, 1, false, {}, {"b.xyz", "", "b.xyz"}})},
    {"OneXyzFile", [](InputBuilder& b) -> InputBuilder& { return b.set_xyz_file(" a.xyz"); },
     placed({GeometryKind::XyzFile, 0, 1, false, {}, {" a.xyz"}})},
    {"AnXyzTrajectory",
     [](InputBuilder& b) -> InputBuilder& { return b.set_xyz_trajectory("t.xyz "); },
     placed({GeometryKind::XyzTrajectory, 0, 1, false, {}, {"t.xyz "}})},
};

INSTANTIATE_TEST_SUITE_P(Geometries, Build, testing::ValuesIn(geometry_rows), row_name<BuildCase>);

const BuildCase post_rows[] = {
    {"AnAtomConstraint", [](InputBuilder& b) -> InputBuilder& { return b.add_atom_constraint(-5); },
     followed({Post::AtomConstraint, {-5}})},
    {"ABondConstraint",
     [](InputBuilder& b) -> InputBuilder& { return b.add_bond_constraint(2, 1); },
     followed({Post::BondConstraint, {2, 1}})},
    {"AnAngleConstraint",
     [](InputBuilder& b) -> InputBuilder& { return b.add_angle_constraint(3, 1, 2); },
     followed({Post::AngleConstraint, {3, 1, 2}})},
    {"ADihedralConstraint",
     [](InputBuilder& b) -> InputBuilder& { return b.add_dihedral_constraint(4, 2, 1, 3); },
     followed({Post::DihedralConstraint, {4, 2, 1, 3}})},
    {"AScan",
     [](InputBuilder& b) -> InputBuilder& {
       return b.add_scan({2, 1}, -0.0, -3);
     },
     followed({Post::Scan, {2, 1}, -0.0, -3})},
    {"APostFile", [](InputBuilder& b) -> InputBuilder& { return b.set_post_file(" out.dat"); },
     followed({Post::PostFile, {}, {}, {}, " out.dat"})},
    {"AMovedPostCommand",
     [](InputBuilder& b) -> InputBuilder& {
       return b.add_post_command(PostCommand(any_post_command));
     },
     followed(any_post_command)},
    {"ACopiedPostCommand",
     [](InputBuilder& b) -> InputBuilder& { return b.add_post_command(any_post_command); },
     followed(any_post_command)},
};

INSTANTIATE_TEST_SUITE_P(PostCommands, Build, testing::ValuesIn(post_rows), row_name<BuildCase>);

TEST(InputBuilder, StartsWithAnEmptyDocument) {
  EXPECT_EQ(InputBuilder().document(), QuillInput());
}

TEST(InputBuilder, IsCopiedWithItsDocument) {
  InputBuilder builder;
  builder.set_flag("opt");
  InputBuilder copy = builder;
  copy.set_flag("freq");
  EXPECT_EQ(builder.document(), QuillInput({flag("opt")}));
  builder = copy;
  EXPECT_EQ(builder.document(), QuillInput({flag("opt"), flag("freq")}));
}

TEST(InputBuilder, GivesTheDocumentAwayWhenItIsAboutToGo) {
  InputBuilder builder;
  builder.set_flag("opt").set_post_file("out.dat");
  const QuillInput copy = builder.document();
  const HeaderCommand* const first = builder.document().commands.data();
  const QuillInput taken = std::move(builder).document();
  EXPECT_EQ(taken, copy);
  EXPECT_EQ(taken.commands.data(), first);
}

TEST(InputBuilder, AppliesAChainInItsOrderToOneDocument) {
  InputBuilder builder;
  builder.set_task("opt", {{"maxiter", "50"}})
      .set_model("m1")
      .add_atom(oxygen)
      .set_flag("opt")
      .set_model("m2")
      .add_atom(AtomRecord{"H", 1.0, 2.0, 3.0});
  EXPECT_EQ(builder.document(),
            QuillInput({flag("opt"), assignment("model", "m2")},
                       {GeometryKind::Atoms, 0, 1, false, {oxygen, {"H", 1.0, 2.0, 3.0}}}));
}

TEST(InputBuilder, ReplacesAFileByTheFirstAtom) {
  InputBuilder builder;
  builder.set_xyz_file("a.xyz").add_atom(oxygen);
  EXPECT_EQ(builder.document(), placed({GeometryKind::Atoms, 0, 1, false, {oxygen}}));
}

TEST(InputBuilder, AddsAPostFileEachTime) {
  InputBuilder builder;
  builder.set_post_file("a.dat").set_post_file("b.dat");
  EXPECT_EQ(builder.document(), QuillInput({}, {},
                                           {{Post::PostFile, {}, {}, {}, "a.dat"},
                                            {Post::PostFile, {}, {}, {}, "b.dat"}}));
}

TEST(InputBuilder, KeepsAddedCommandsOfOneName) {
  InputBuilder builder;
  builder.add_command(list("opt", {{"tight"}})).add_command(any_command);
  EXPECT_EQ(builder.document(), QuillInput({list("opt", {{"tight"}}), any_command}));
}

TEST(InputBuilder, SetsTheTaskParameterOfTheFirstCommandOfTheName) {
  const HeaderCommand second = list("OPT", {{"maxiter", "60"}});
  InputBuilder builder;
  builder.add_command(list("opt", {{"maxiter", "50"}})).add_command(second);
  builder.set_task_parameter("opt", "maxiter", "100");
  EXPECT_EQ(builder.document(), QuillInput({list("opt", {{"maxiter", "100"}}), second}));
}

TEST(InputBuilder, MovesTheCommandsItMay) {
  HeaderCommand command = list("opt", {{"tight"}});
  PostCommand post_command{Post::BondConstraint, {1, 2}};
  const CommandParameter* const parameter = command.parameters.data();
  const int* const index = post_command.atom_indices.data();
  InputBuilder builder;
  builder.add_command(std::move(command)).add_post_command(std::move(post_command));
  EXPECT_EQ(builder.document().commands.front().parameters.data(), parameter);
  EXPECT_EQ(builder.document().post_commands.front().atom_indices.data(), index);
}

}  // namespace

}  // namespace kelp::input::quill
