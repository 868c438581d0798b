#include <gtest/gtest.h>

#include <ostream>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "support/comparison.hpp"
#include "support/edit_case.hpp"
#include "support/printing.hpp"

namespace kelp::input::quill {

namespace {

using Kind = GeometryKind;

const std::vector<AtomRecord> no_atoms;
const std::vector<std::string> no_files;
const std::vector<AtomRecord> three_atoms = {
    {"O", 0.0, 0.0, 0.1}, {"H", 0.0, 0.8, -0.5}, {"H", 0.0, -0.8, -0.5}};

/// A document with this geometry and a charge and multiplicity that none of the operations touches.
QuillInput placed(Kind kind, std::vector<AtomRecord> atoms, std::vector<std::string> files) {
  return with_geometry({kind, -1, 2, true, std::move(atoms), std::move(files)});
}

QuillInput uncharged(Kind kind, std::vector<AtomRecord> atoms, std::vector<std::string> files) {
  return with_geometry({kind, 3, 4, false, std::move(atoms), std::move(files)});
}

class SetXyz : public testing::TestWithParam<EditCase> {};

TEST_P(SetXyz, GivesTheDocument) { expect_edit(GetParam()); }

const EditCase file_rows[] = {
    {"FilesTakeThePlaceOfAtoms", placed(Kind::Atoms, three_atoms, no_files),
     [](InputEditor& editor) {
       editor.set_xyz_files({"b.xyz", "a.xyz", "b.xyz"});
     },
     placed(Kind::XyzFile, no_atoms, {"b.xyz", "a.xyz", "b.xyz"})},
    {"FilesTakeThePlaceOfMoreFiles", placed(Kind::XyzFile, no_atoms, {"a.xyz", "b.xyz"}),
     [](InputEditor& editor) { editor.set_xyz_files({"c.xyz"}); },
     placed(Kind::XyzFile, no_atoms, {"c.xyz"})},
    {"FilesTakeThePlaceOfATrajectory", uncharged(Kind::XyzTrajectory, three_atoms, {"t.xyz"}),
     [](InputEditor& editor) {
       editor.set_xyz_files({"a.xyz", "b.xyz"});
     },
     uncharged(Kind::XyzFile, no_atoms, {"a.xyz", "b.xyz"})},
    {"NoFilesWillDo", placed(Kind::Atoms, three_atoms, {"a.xyz"}),
     [](InputEditor& editor) { editor.set_xyz_files({}); },
     placed(Kind::XyzFile, no_atoms, no_files)},
    {"PathsAreNotLookedAt", placed(Kind::None, no_atoms, no_files),
     [](InputEditor& editor) {
       editor.set_xyz_files({"", " two words ", "no\nsuch"});
     },
     placed(Kind::XyzFile, no_atoms, {"", " two words ", "no\nsuch"})},
    {"TheOwnFilesAreKept", placed(Kind::XyzTrajectory, three_atoms, {"a.xyz", "b.xyz"}),
     [](InputEditor& editor) { editor.set_xyz_files(editor.document().geometry.xyz_files); },
     placed(Kind::XyzFile, no_atoms, {"a.xyz", "b.xyz"})},
    {"OneFileTakesThePlaceOfThreeAtoms", placed(Kind::Atoms, three_atoms, no_files),
     [](InputEditor& editor) { editor.set_xyz_file("a.xyz"); },
     placed(Kind::XyzFile, no_atoms, {"a.xyz"})},
    {"OneFileTakesThePlaceOfTwo", uncharged(Kind::XyzFile, three_atoms, {"a.xyz", "b.xyz"}),
     [](InputEditor& editor) { editor.set_xyz_file("c.xyz"); },
     uncharged(Kind::XyzFile, no_atoms, {"c.xyz"})},
    {"TheEmptyPathOfOneFileIsKept", placed(Kind::Atoms, three_atoms, no_files),
     [](InputEditor& editor) { editor.set_xyz_file(std::string_view()); },
     placed(Kind::XyzFile, no_atoms, {""})},
    {"ATrajectoryTakesThePlaceOfAtoms", placed(Kind::Atoms, three_atoms, no_files),
     [](InputEditor& editor) { editor.set_xyz_trajectory("t.xyz"); },
     placed(Kind::XyzTrajectory, no_atoms, {"t.xyz"})},
    {"ATrajectoryTakesThePlaceOfTwoFiles", uncharged(Kind::None, three_atoms, no_files),
     [](InputEditor& editor) {
       editor.set_xyz_files({"a.xyz", "b.xyz"});
       editor.set_xyz_trajectory("t.xyz");
     },
     uncharged(Kind::XyzTrajectory, no_atoms, {"t.xyz"})},
    {"TheEmptyPathOfATrajectoryIsKept", placed(Kind::Atoms, three_atoms, {"a.xyz"}),
     [](InputEditor& editor) { editor.set_xyz_trajectory(std::string_view()); },
     placed(Kind::XyzTrajectory, no_atoms, {""})},
    {"OnlyThePathViewedIsTaken", placed(Kind::None, no_atoms, no_files),
     [](InputEditor& editor) { editor.set_xyz_trajectory(std::string_view("t.xyz.gz", 5)); },
     placed(Kind::XyzTrajectory, no_atoms, {"t.xyz"})},
};

INSTANTIATE_TEST_SUITE_P(Table, SetXyz, testing::ValuesIn(file_rows), row_name<EditCase>);

#ifdef __GLIBCXX__  // other standard libraries do not refuse such a view: their behaviour is
                    // undefined
/// A path with a length of three bytes and a null pointer as its data.
std::string_view text_without_data() { return {nullptr, 3}; }

template <typename Operation>
void expect_text_refused(Operation operation) {
  try {
    operation();
    ADD_FAILURE() << "nothing was thrown";
  } catch (const std::logic_error& error) {
    EXPECT_STREQ(error.what(), "basic_string: construction from null is not valid");
  }
}

TEST(APathWithoutData, LeavesTheDocumentAsItIsWhenItIsThatOfOneFile) {
  const QuillInput before = placed(Kind::Atoms, three_atoms, {"a.xyz"});
  InputEditor editor(before);
  expect_text_refused([&] { editor.set_xyz_file(text_without_data()); });
  EXPECT_EQ(editor.document(), before);
}

TEST(APathWithoutData, ComesAfterTheKindAndTheAtomsWhenItIsThatOfATrajectory) {
  InputEditor editor(placed(Kind::Atoms, three_atoms, {"a.xyz"}));
  expect_text_refused([&] { editor.set_xyz_trajectory(text_without_data()); });
  EXPECT_EQ(editor.document(), placed(Kind::XyzTrajectory, no_atoms, {"a.xyz"}));
}

TEST(APathWithoutData, AddsNoPostFile) {
  const QuillInput before = placed(Kind::Atoms, three_atoms, {"a.xyz"});
  InputEditor editor(before);
  expect_text_refused([&] { editor.set_post_file(text_without_data()); });
  EXPECT_EQ(editor.document(), before);
}

using Change = void (*)(InputEditor&, std::string_view);

struct WithoutDataRow {
  const char* name;
  Change change;
};

void PrintTo(const WithoutDataRow& row, std::ostream* out) { *out << row.name; }

class ATextWithoutData : public testing::TestWithParam<WithoutDataRow> {};

TEST_P(ATextWithoutData, LeavesTheDocumentAsItIs) {
  InputEditor editor{QuillInput()};
  expect_text_refused([&] { GetParam().change(editor, text_without_data()); });
  EXPECT_EQ(editor.document(), QuillInput());
}

const WithoutDataRow without_data_rows[] = {
    {"AsTheNameOfAFlag", [](auto& editor, auto text) { editor.set_flag(text); }},
    {"AsTheNameOfATask", [](auto& editor, auto text) { editor.set_task(text, {}); }},
    {"AsTheNameOfAnAssignment", [](auto& editor, auto text) { editor.set_assignment(text, "v"); }},
    {"AsTheValueOfAnAssignment",
     [](auto& editor, auto text) { editor.set_assignment("basis", text); }},
    {"AsTheModel", [](auto& editor, auto text) { editor.set_model(text); }},
    {"AsTheDevice", [](auto& editor, auto text) { editor.set_device(text); }},
    {"AsTheNameOfAParameter",
     [](auto& editor, auto text) { editor.set_parameter("opt", text, "1"); }},
    {"AsTheValueOfAParameter",
     [](auto& editor, auto text) { editor.set_parameter("opt", "tight", text); }},
};

INSTANTIATE_TEST_SUITE_P(Table, ATextWithoutData, testing::ValuesIn(without_data_rows),
                         [](const auto& row) { return std::string(row.param.name); });
#endif

/// An editor whose two lists have room for more than they hold.
InputEditor roomy_editor(Kind kind) {
  QuillInput input = placed(kind, three_atoms, {"a.xyz"});
  input.geometry.atoms.reserve(100);
  input.geometry.xyz_files.reserve(100);
  return InputEditor(std::move(input));
}

TEST(AnEmptiedList, KeepsItsRoomForFilesWhenAtomsAreSet) {
  InputEditor editor = roomy_editor(Kind::XyzFile);
  editor.set_geometry(three_atoms);
  EXPECT_GE(editor.document().geometry.xyz_files.capacity(), 100U);
}

TEST(AnEmptiedList, KeepsItsRoomForAtomsWhenFilesAreSet) {
  InputEditor editor = roomy_editor(Kind::Atoms);
  editor.set_xyz_files({"b.xyz"});
  EXPECT_GE(editor.document().geometry.atoms.capacity(), 100U);
}

TEST(AnEmptiedList, KeepsItsRoomForAtomsWhenATrajectoryIsSet) {
  InputEditor editor = roomy_editor(Kind::Atoms);
  editor.set_xyz_trajectory("t.xyz");
  EXPECT_GE(editor.document().geometry.atoms.capacity(), 100U);
}

TEST(AnEmptiedList, KeepsItsRoomWhenTheFirstAtomIsAdded) {
  InputEditor editor = roomy_editor(Kind::XyzTrajectory);
  editor.add_atom(AtomRecord{"H", 0.0, 0.0, 0.0});
  EXPECT_GE(editor.document().geometry.atoms.capacity(), 100U);
  EXPECT_GE(editor.document().geometry.xyz_files.capacity(), 100U);
}

TEST(TheFirstAtom, TakesRoomForItselfOnly) {
  InputEditor editor{QuillInput()};
  editor.add_atom(AtomRecord{"H", 0.0, 0.0, 0.0});
  EXPECT_EQ(editor.document().geometry.atoms.capacity(), 1U);
}

}  // namespace

}  // namespace kelp::input::quill
