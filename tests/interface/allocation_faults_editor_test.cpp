#include <gtest/gtest.h>

#include <cstddef>
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

// What an editor's document is like after each allocation of each operation has failed.

namespace kelp::input::quill {

namespace {

using Geometry = GeometryKind;

const std::string opt = longer(" #Opt");
const std::string basis = longer("BASIS");
const std::string fresh = longer("Fresh");
const std::string maxiter = longer("MaxIter");
const std::string value = longer("100");

const std::vector<CommandParameter> parameters = {{longer("a"), longer("b")}, {longer("c")}};
const HeaderCommand command = list(longer("freq"), parameters);
const PostCommand post_command{PostCommandKind::Raw, {1, 2}, 1.5, 10, longer("p"), longer("r")};

const AtomRecord atom{longer("C"), 1.0, 2.0, 3.0};
const std::vector<AtomRecord> atoms = {atom, {longer("N"), 4.0, 5.0, 6.0}};
const kelp::core::Geometry core_geometry{
    {{longer("C"), 1.0, 2.0, 3.0}, {longer("N"), 4.0, 5.0, 6.0}}};
const std::vector<std::string> files = {longer("c.xyz"), longer("d.xyz")};
const std::vector<int> indices = {1, 2, 3, 4};

/// An operation and the documents after its failures: the first failures leave the first document,
/// later ones the next, and so on.
struct Fault {
  std::string_view name;
  QuillInput before;
  std::function<void(InputEditor&)> call;
  std::vector<QuillInput> left;
};

void PrintTo(const Fault& row, std::ostream* out) { *out << row.name; }

/// An operation that leaves the document as it was.
Fault all_or_nothing(std::string_view name, QuillInput before,
                     std::function<void(InputEditor&)> call) {
  Fault fault{name, before, std::move(call), {}};
  fault.left.push_back(std::move(before));
  return fault;
}

Fault all_or_nothing(std::string_view name, std::function<void(InputEditor&)> call) {
  return all_or_nothing(name, long_document(Geometry::Atoms), std::move(call));
}

QuillInput with_kind_only(QuillInput document, Geometry kind) {
  document.geometry.kind = kind;
  return document;
}

QuillInput without_atoms(QuillInput document) {
  document.geometry.atoms.clear();
  return document;
}

QuillInput with_command(QuillInput document, HeaderCommand added) {
  document.commands.push_back(std::move(added));
  return document;
}

QuillInput edited(const Fault& row) {
  InputEditor editor(row.before);
  row.call(editor);
  return editor.document();
}

class AfterAFailedAllocation : public testing::TestWithParam<Fault> {};

TEST_P(AfterAFailedAllocation, TheDocumentIsValidAndTheCallCanBeRepeated) {
  const Fault& row = GetParam();
  const QuillInput after = edited(row);
  std::size_t current = 0;
  std::vector<int> times_found(row.left.size());

  const std::uint64_t failures = fail_each_allocation(
      [&] { return InputEditor(row.before); }, row.call,
      [&](InputEditor& editor, std::uint64_t failing) {
        if (editor.document() != row.left[current] && current + 1 < row.left.size()) ++current;
        EXPECT_EQ(editor.document(), row.left[current]) << "allocation " << failing;
        ++times_found[current];
        row.call(editor);
        EXPECT_EQ(editor.document(), after) << "repeated after allocation " << failing;
      },
      [&](const InputEditor& editor) { EXPECT_EQ(editor.document(), after); });

  EXPECT_GT(failures, 0U);
  for (const int times : times_found) EXPECT_GT(times, 0);
}

const Fault header_rows[] = {
    all_or_nothing("SettingAKnownFlag", [](InputEditor& editor) { editor.set_flag(opt); }),
    all_or_nothing("SettingANewFlag", [](InputEditor& editor) { editor.set_flag(fresh); }),
    all_or_nothing("SettingAKnownAssignment",
                   [](InputEditor& editor) { editor.set_assignment(opt, value); }),
    all_or_nothing("SettingANewAssignment",
                   [](InputEditor& editor) { editor.set_assignment(fresh, value); }),
    all_or_nothing("SettingTheModel", [](InputEditor& editor) { editor.set_model(value); }),
    all_or_nothing("SettingTheDevice", [](InputEditor& editor) { editor.set_device(value); }),
    all_or_nothing("SettingAKnownTask",
                   [](InputEditor& editor) { editor.set_task(opt, parameters); }),
    all_or_nothing("SettingANewTask",
                   [](InputEditor& editor) { editor.set_task(fresh, parameters); }),
    all_or_nothing("SettingATaskWithoutParameters",
                   [](InputEditor& editor) { editor.set_task(fresh); }),
    all_or_nothing("SettingAKnownParameter",
                   [](InputEditor& editor) { editor.set_parameter(opt, maxiter, value); }),
    all_or_nothing("SettingANewParameter",
                   [](InputEditor& editor) { editor.set_parameter(opt, fresh, value); }),
    all_or_nothing("SettingAParameterOfAnAssignment",
                   [](InputEditor& editor) { editor.set_parameter(basis, maxiter, value); }),
    all_or_nothing("SettingAParameterOfALaterCommand",
                   [](InputEditor& editor) { editor.set_parameter(opt, maxiter, value, 1); }),
    all_or_nothing("SettingAParameterOfAMissingOccurrence",
                   [](InputEditor& editor) { editor.set_parameter(opt, maxiter, value, 2); }),
    {"SettingAParameterOfANewCommand",
     long_document(Geometry::Atoms),
     [](InputEditor& editor) { editor.set_parameter(fresh, maxiter, value); },
     {long_document(Geometry::Atoms), with_command(long_document(Geometry::Atoms), flag(fresh))}},
    all_or_nothing("AddingACopiedCommand",
                   [](InputEditor& editor) { editor.add_command(command); }),
    all_or_nothing("AddingAMovedCommand",
                   [](InputEditor& editor) { editor.add_command(HeaderCommand(command)); }),
};

INSTANTIATE_TEST_SUITE_P(Header, AfterAFailedAllocation, testing::ValuesIn(header_rows),
                         row_name<Fault>);

const Fault removal_rows[] = {
    all_or_nothing("RemovingAParameter",
                   [](InputEditor& editor) { editor.remove_parameter(opt, maxiter); }),
    all_or_nothing("RemovingTheLastParameter",
                   [](InputEditor& editor) { editor.remove_parameter(opt, maxiter, 1); }),
    all_or_nothing("RemovingAParameterInVain",
                   [](InputEditor& editor) { editor.remove_parameter(opt, fresh); }),
    all_or_nothing("RemovingEveryCommandOfAName",
                   [](InputEditor& editor) { editor.remove_command(opt); }),
    all_or_nothing("RemovingOneCommand",
                   [](InputEditor& editor) { editor.remove_command(opt, 0); }),
    all_or_nothing("RemovingALaterCommand",
                   [](InputEditor& editor) { editor.remove_command(opt, 1); }),
    all_or_nothing("RemovingACommandInVain",
                   [](InputEditor& editor) { editor.remove_command(fresh); }),
};

INSTANTIATE_TEST_SUITE_P(Removals, AfterAFailedAllocation, testing::ValuesIn(removal_rows),
                         row_name<Fault>);

const QuillInput of_files = long_document(Geometry::XyzFile);
const QuillInput of_atoms = long_document(Geometry::Atoms);

const Fault geometry_rows[] = {
    {"SettingTheGeometryLeavesTheOldListsWithTheNewKind",
     of_files,
     [](InputEditor& editor) { editor.set_geometry(atoms); },
     {with_kind_only(of_files, Geometry::Atoms)}},
    {"SettingACoreGeometryDoesSoOnceItIsConverted",
     of_files,
     [](InputEditor& editor) { editor.set_geometry(core_geometry); },
     {of_files, with_kind_only(of_files, Geometry::Atoms)}},
    {"SettingFilesLeavesTheOldFilesAndNoAtoms",
     of_atoms,
     [](InputEditor& editor) { editor.set_xyz_files(files); },
     {without_atoms(with_kind_only(of_atoms, Geometry::XyzFile))}},
    {"SettingOneFileDoesSoOnceItsListIsMade",
     of_atoms,
     [](InputEditor& editor) { editor.set_xyz_file(value); },
     {of_atoms, without_atoms(with_kind_only(of_atoms, Geometry::XyzFile))}},
    {"SettingATrajectoryLeavesTheOldFilesAndNoAtoms",
     of_atoms,
     [](InputEditor& editor) { editor.set_xyz_trajectory(value); },
     {without_atoms(with_kind_only(of_atoms, Geometry::XyzTrajectory))}},
    all_or_nothing("AddingAnAtom", of_atoms, [](InputEditor& editor) { editor.add_atom(atom); }),
    all_or_nothing("AddingACoreAtom", of_atoms,
                   [](InputEditor& editor) { editor.add_atom(core_geometry.atoms.front()); }),
    all_or_nothing("AddingAnAtomInPlaceOfFiles", of_files,
                   [](InputEditor& editor) { editor.add_atom(atom); }),
    all_or_nothing("AddingAnAtomInPlaceOfFilesWhereThereWereNoAtoms", without_atoms(of_files),
                   [](InputEditor& editor) { editor.add_atom(atom); }),
};

INSTANTIATE_TEST_SUITE_P(Geometry, AfterAFailedAllocation, testing::ValuesIn(geometry_rows),
                         row_name<Fault>);

const Fault post_rows[] = {
    all_or_nothing("AddingAnAtomConstraint",
                   [](InputEditor& editor) { editor.add_atom_constraint(1); }),
    all_or_nothing("AddingABondConstraint",
                   [](InputEditor& editor) { editor.add_bond_constraint(1, 2); }),
    all_or_nothing("AddingAnAngleConstraint",
                   [](InputEditor& editor) { editor.add_angle_constraint(1, 2, 3); }),
    all_or_nothing("AddingADihedralConstraint",
                   [](InputEditor& editor) { editor.add_dihedral_constraint(1, 2, 3, 4); }),
    all_or_nothing("AddingAScan", [](InputEditor& editor) { editor.add_scan(indices, 1.5, 10); }),
    all_or_nothing("AddingAPostFile", [](InputEditor& editor) { editor.set_post_file(value); }),
    all_or_nothing("AddingACopiedPostCommand",
                   [](InputEditor& editor) { editor.add_post_command(post_command); }),
    all_or_nothing("AddingAMovedPostCommand",
                   [](InputEditor& editor) { editor.add_post_command(PostCommand(post_command)); }),
};

INSTANTIATE_TEST_SUITE_P(PostCommands, AfterAFailedAllocation, testing::ValuesIn(post_rows),
                         row_name<Fault>);

TEST(WhatNeedsNoMemory, CannotRunOutOfIt) {
  QuillInput input = long_document(Geometry::XyzFile);
  input.commands.reserve(100);
  input.post_commands.reserve(100);
  HeaderCommand moved_command = command;
  PostCommand moved_post_command = post_command;
  const AllocationWindow window;
  InputEditor editor(std::move(input));
  editor.set_charge_and_multiplicity(0, 1);
  editor.clear_charge_and_multiplicity();
  editor.set_geometry(editor.document().geometry.atoms);
  editor.set_xyz_files(editor.document().geometry.xyz_files);
  editor.add_command(std::move(moved_command));
  editor.add_post_command(std::move(moved_post_command));
  editor.clear_post_commands();
  InputEditor moved = std::move(editor);
  const QuillInput taken = std::move(moved).document();
  EXPECT_EQ(window.allocations(), 0U);
}

TEST(AnEditor, MakesRoomForAllAtomsOfAGeometryAtOnce) {
  constexpr std::uint64_t of_converting = 1;
  constexpr std::uint64_t of_copying = 1;
  const kelp::core::Geometry geometry{
      std::vector<kelp::core::Atom>(100, kelp::core::Atom{"O", 0.0, 0.0, 0.0})};
  InputEditor editor{QuillInput()};
  const AllocationWindow window;
  editor.set_geometry(geometry);
  EXPECT_EQ(window.allocations(), of_converting + of_copying);
}

TEST(AFailedAllocation, LeavesNoHalfAnAnswerOfAnEditor) {
  const InputEditor editor(long_document(Geometry::Atoms));
  const QuillInput before = editor.document();
  EXPECT_GT(expect_whole_answer_or_none([&] { return editor.has_command(opt); }), 0U);
  EXPECT_GT(expect_whole_answer_or_none([&] { return editor.has_task_command(); }), 0U);
  EXPECT_GT(expect_whole_answer_or_none([&] { return editor.command_names(); }), 0U);
  EXPECT_GT(expect_whole_answer_or_none([&] { return editor.get_assignment(basis); }), 0U);
  EXPECT_GT(expect_whole_answer_or_none([&] { return editor.model(); }), 0U);
  EXPECT_GT(expect_whole_answer_or_none([&] { return editor.device(); }), 0U);
  EXPECT_GT(expect_whole_answer_or_none([&] { return editor.get_parameter(opt, maxiter, 1); }), 0U);
  EXPECT_GT(expect_whole_answer_or_none([&] { return editor.to_string(); }), 0U);
  EXPECT_EQ(editor.document(), before);
}

}  // namespace

}  // namespace kelp::input::quill
