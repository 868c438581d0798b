#include <gtest/gtest.h>

#include <cstdint>
#include <functional>
#include <ostream>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "kelp/core/geometry.hpp"
#include "support/comparison.hpp"
#include "support/edit_case.hpp"
#include "support/fail_each_allocation.hpp"
#include "support/long_document.hpp"
#include "support/printing.hpp"

// A builder's operation works on a copy of the document and copies the result back. A failure
// before that last copy leaves the builder as it was; a failure during it leaves a valid document.

namespace kelp::input::quill {

namespace {

const std::string opt = longer(" #Opt");
const std::string fresh = longer("Fresh");
const std::string maxiter = longer("MaxIter");
const std::string value = longer(longer("100"));

const std::vector<CommandParameter> parameters = {{longer(longer("a")), longer("b")},
                                                  {longer("c")}};
const HeaderCommand command = list(longer("freq"), parameters);
const PostCommand post_command{PostCommandKind::Raw, {1, 2}, 1.5, 10, longer("p"), longer("r")};

const AtomRecord atom{longer("C"), 1.0, 2.0, 3.0};
const std::vector<AtomRecord> atoms = {atom, atom, {longer("N"), 4.0, 5.0, 6.0}};
const kelp::core::Atom core_atom{longer("C"), 1.0, 2.0, 3.0};
const kelp::core::Geometry core_geometry{{core_atom, core_atom, core_atom}};
const std::vector<std::string> files = {longer("c.xyz"), longer("d.xyz"), longer("e.xyz")};
const std::vector<int> indices = {1, 2, 3, 4};

enum class Start { WithAtoms, WithFiles };

InputBuilder make_builder(Start start) {
  const QuillInput document = long_document(GeometryKind::Atoms);
  InputBuilder made;
  made.set_charge_and_multiplicity(-1, 2);
  for (const HeaderCommand& each : document.commands) made.add_command(each);
  for (const PostCommand& each : document.post_commands) made.add_post_command(each);
  if (start == Start::WithAtoms) {
    made.set_geometry(document.geometry.atoms);
  } else {
    made.set_xyz_files(document.geometry.xyz_files);
  }
  return made;
}

/// An operation of the builder and the same one of the editor.
struct Fault {
  std::string_view name;
  std::function<void(InputBuilder&)> build;
  std::function<void(InputEditor&)> edit;
  Start start = Start::WithAtoms;
};

void PrintTo(const Fault& row, std::ostream* out) { *out << row.name; }

template <typename Call>
Fault fault(std::string_view name, Call call, Start start = Start::WithAtoms) {
  return {name, call, call, start};
}

QuillInput edited(QuillInput document, const Fault& row) {
  InputEditor editor(std::move(document));
  row.edit(editor);
  return std::move(editor).document();
}

/// How many allocations the last step of an operation makes.
std::uint64_t allocations_of_copying_back(const QuillInput& before, const QuillInput& after) {
  QuillInput target = before;
  const AllocationWindow window;
  target = after;
  return window.allocations();
}

template <typename Call>
std::uint64_t allocations_of(Call call) {
  const AllocationWindow window;
  call();
  return window.allocations();
}

/// The sections are copied back one after the other; the one in which memory ran out may hold a
/// mixture of old and new entries.
void expect_valid(const InputBuilder& builder, const QuillInput& before, const QuillInput& after) {
  const QuillInput& document = builder.document();
  if (document.geometry != before.geometry || document.post_commands != before.post_commands) {
    EXPECT_EQ(document.commands, after.commands);
  }
  if (document.post_commands != before.post_commands) {
    EXPECT_EQ(document.geometry, after.geometry);
  }
  const QuillInput copy = document;
  EXPECT_EQ(copy, document);
  EXPECT_EQ(copy.to_string(), builder.to_string());
}

class ABuilder : public testing::TestWithParam<Fault> {};

TEST_P(ABuilder, KeepsItsDocumentUntilTheOperationIsDone) {
  const Fault& row = GetParam();
  const InputBuilder prototype = make_builder(row.start);
  const QuillInput& before = prototype.document();
  const QuillInput after = edited(before, row);
  InputBuilder counted = prototype;
  const std::uint64_t all = allocations_of([&] { row.build(counted); });
  const std::uint64_t copying_back = allocations_of_copying_back(before, after);
  ASSERT_GT(copying_back, 0U);
  ASSERT_GT(all, copying_back);

  const std::uint64_t failures = fail_each_allocation(
      [&] { return prototype; }, row.build,
      [&](InputBuilder& builder, std::uint64_t failing) {
        if (failing <= all - copying_back) {
          EXPECT_EQ(builder.document(), before) << "allocation " << failing << " of " << all;
        } else {
          expect_valid(builder, before, after);
        }
      },
      [&](const InputBuilder& builder) { EXPECT_EQ(builder.document(), after); });
  EXPECT_EQ(failures, all);
}

const Fault rows[] = {
    fault("SettingAKnownTask", [](auto& author) { author.set_task(opt, parameters); }),
    fault("SettingANewTask", [](auto& author) { author.set_task(fresh, parameters); }),
    {"SettingAKnownTaskParameter",
     [](InputBuilder& builder) { builder.set_task_parameter(opt, maxiter, value); },
     [](InputEditor& editor) { editor.set_parameter(opt, maxiter, value, 0); }},
    {"SettingATaskParameterOfANewCommand",
     [](InputBuilder& builder) { builder.set_task_parameter(fresh, maxiter, value); },
     [](InputEditor& editor) { editor.set_parameter(fresh, maxiter, value, 0); }},
    fault("SettingTheModel", [](auto& author) { author.set_model(value); }),
    fault("SettingTheDevice", [](auto& author) { author.set_device(value); }),
    fault("SettingAKnownAssignment", [](auto& author) { author.set_assignment(opt, value); }),
    fault("SettingANewAssignment", [](auto& author) { author.set_assignment(fresh, value); }),
    fault("SettingANewFlag", [](auto& author) { author.set_flag(fresh); }),
    fault("AddingAnAtom", [](auto& author) { author.add_atom(atom); }),
    fault("AddingACoreAtom", [](auto& author) { author.add_atom(core_atom); }),
    fault(
        "AddingAnAtomInPlaceOfFiles", [](auto& author) { author.add_atom(atom); },
        Start::WithFiles),
    fault("SettingTheGeometry", [](auto& author) { author.set_geometry(atoms); }),
    fault(
        "SettingTheGeometryInPlaceOfFiles", [](auto& author) { author.set_geometry(atoms); },
        Start::WithFiles),
    fault("SettingACoreGeometry", [](auto& author) { author.set_geometry(core_geometry); }),
    fault(
        "SettingFiles", [](auto& author) { author.set_xyz_files(files); }, Start::WithFiles),
    fault("SettingFilesInPlaceOfAtoms", [](auto& author) { author.set_xyz_files(files); }),
    fault("SettingOneFile", [](auto& author) { author.set_xyz_file(value); }),
    fault("SettingATrajectory", [](auto& author) { author.set_xyz_trajectory(value); }),
    fault("AddingAnAtomConstraint", [](auto& author) { author.add_atom_constraint(1); }),
    fault("AddingABondConstraint", [](auto& author) { author.add_bond_constraint(1, 2); }),
    fault("AddingAnAngleConstraint", [](auto& author) { author.add_angle_constraint(1, 2, 3); }),
    fault("AddingADihedralConstraint",
          [](auto& author) { author.add_dihedral_constraint(1, 2, 3, 4); }),
    fault("AddingAScan", [](auto& author) { author.add_scan(indices, 1.5, 10); }),
    fault("AddingAPostFile", [](auto& author) { author.set_post_file(value); }),
};

INSTANTIATE_TEST_SUITE_P(OnACopy, ABuilder, testing::ValuesIn(rows), row_name<Fault>);

class ABuilderInPlace : public testing::TestWithParam<Fault> {};

TEST_P(ABuilderInPlace, AppendsOrChangesNothing) {
  const Fault& row = GetParam();
  const InputBuilder prototype = make_builder(row.start);
  const QuillInput after = edited(prototype.document(), row);
  const std::uint64_t failures = fail_each_allocation(
      [&] { return prototype; }, row.build,
      [&](const InputBuilder& builder, std::uint64_t failing) {
        EXPECT_EQ(builder.document(), prototype.document()) << "allocation " << failing;
      },
      [&](const InputBuilder& builder) { EXPECT_EQ(builder.document(), after); });
  EXPECT_GT(failures, 0U);
}

const Fault rows_in_place[] = {
    fault("ACopiedCommand", [](auto& author) { author.add_command(command); }),
    fault("AMovedCommand", [](auto& author) { author.add_command(HeaderCommand(command)); }),
    fault("ACopiedPostCommand", [](auto& author) { author.add_post_command(post_command); }),
    fault("AMovedPostCommand",
          [](auto& author) { author.add_post_command(PostCommand(post_command)); }),
};

INSTANTIATE_TEST_SUITE_P(Table, ABuilderInPlace, testing::ValuesIn(rows_in_place), row_name<Fault>);

TEST(ABuilderInPlace, CopiesNothingOfItsDocument) {
  const InputBuilder prototype = make_builder(Start::WithAtoms);
  InputBuilder builder = prototype;  // a copied vector has no more room than it needs
  InputBuilder other = prototype;
  HeaderCommand moved_command = command;
  PostCommand moved_post_command = post_command;
  const std::uint64_t of_copying = allocations_of([] { const HeaderCommand copy = command; });
  EXPECT_EQ(allocations_of([&] { builder.set_charge_and_multiplicity(0, 1); }), 0U);
  EXPECT_EQ(allocations_of([&] { builder.clear_charge_and_multiplicity(); }), 0U);
  EXPECT_EQ(allocations_of([&] { builder.add_command(std::move(moved_command)); }), 1U);
  EXPECT_EQ(allocations_of([&] { builder.add_post_command(std::move(moved_post_command)); }), 1U);
  EXPECT_EQ(allocations_of([&] { other.add_command(command); }), 1U + of_copying);
}

TEST(ABuilder, HandsTheParametersOfATaskOverWithoutCopyingThem) {
  const InputBuilder prototype = make_builder(Start::WithAtoms);
  std::string name = opt;
  std::vector<CommandParameter> moved = parameters;
  InputEditor editor{prototype.document()};
  const std::uint64_t of_copying =
      allocations_of([&] { const QuillInput copy = prototype.document(); });
  const std::uint64_t of_editing = allocations_of([&] { editor.set_task(name, std::move(moved)); });
  const std::uint64_t of_copying_back =
      allocations_of_copying_back(prototype.document(), editor.document());

  moved = parameters;
  InputBuilder builder = prototype;
  EXPECT_EQ(allocations_of([&] { builder.set_task(std::move(name), std::move(moved)); }),
            of_copying + of_editing + of_copying_back);
}

TEST(ABuilder, MakesRoomForWhatItAddsTogetherWithTheCopyItIsAddedTo) {
  constexpr std::uint64_t of_the_copy = 1;
  constexpr std::uint64_t of_copying_back = 1;
  static const AtomRecord hydrogen{"H", 0.0, 0.0, 1.0};
  PostCommand short_line;
  short_line.raw_text = "end";
  InputBuilder flags;
  InputBuilder lines;
  InputBuilder atoms_only;
  for (int i = 0; i < 100; ++i) {
    flags.add_command(flag("opt"));
    lines.add_post_command(short_line);
    atoms_only.add_atom(hydrogen);
  }
  // A copied list has no room to spare.
  const auto allocations_in_a_copy = [](InputBuilder builder, const auto& operation) {
    return allocations_of([&] { operation(builder); });
  };
  EXPECT_EQ(allocations_in_a_copy(flags, [](auto& builder) { builder.set_flag("freq"); }),
            of_the_copy + of_copying_back);
  EXPECT_EQ(allocations_in_a_copy(lines, [](auto& builder) { builder.set_post_file("a"); }),
            of_the_copy + of_copying_back);
  EXPECT_EQ(allocations_in_a_copy(atoms_only, [](auto& builder) { builder.add_atom(hydrogen); }),
            of_the_copy + of_copying_back);
}

TEST(ABuilder, GivesAWholeTextOrNone) {
  const InputBuilder builder = make_builder(Start::WithAtoms);
  EXPECT_GT(expect_whole_answer_or_none([&] { return builder.to_string(); }), 0U);
}

}  // namespace

}  // namespace kelp::input::quill
