#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <limits>
#include <string>
#include <utility>
#include <vector>

#include "kelp/core/geometry.hpp"
#include "support/comparison.hpp"
#include "support/edit_case.hpp"
#include "support/printing.hpp"

namespace kelp::input::quill {

namespace {

using Kind = GeometryKind;

const std::vector<AtomRecord> no_atoms;
const std::vector<std::string> no_files;
const AtomRecord hydrogen{"H", 0.0, 0.7572, -0.4692};
const AtomRecord oxygen{"O", 0.0, 0.0, 0.1173};
const std::vector<AtomRecord> water = {oxygen, hydrogen, {"H", 0.0, -0.7572, -0.4692}};

/// Numbers that any computation would change, and symbols that any normalisation would change.
const kelp::core::Geometry odd_molecule{
    {{"cl", -0.0, std::numeric_limits<double>::denorm_min(), 0.1},
     {" H#1", -std::nan("7"), std::numeric_limits<double>::infinity(), -1e300},
     {"", 1.0, 2.0, 3.0}}};
const std::vector<AtomRecord> odd_atoms = {
    {"cl", -0.0, std::numeric_limits<double>::denorm_min(), 0.1},
    {" H#1", -std::nan("7"), std::numeric_limits<double>::infinity(), -1e300},
    {"", 1.0, 2.0, 3.0}};

/// A document with this geometry and a charge and multiplicity that none of the operations touches.
QuillInput placed(Kind kind, std::vector<AtomRecord> atoms, std::vector<std::string> files) {
  return with_geometry({kind, -1, 2, true, std::move(atoms), std::move(files)});
}

QuillInput uncharged(Kind kind, std::vector<AtomRecord> atoms, std::vector<std::string> files) {
  return with_geometry({kind, 3, 4, false, std::move(atoms), std::move(files)});
}

class SetGeometry : public testing::TestWithParam<EditCase> {};

TEST_P(SetGeometry, GivesTheDocument) { expect_edit(GetParam()); }

const EditCase set_geometry_rows[] = {
    {"AtomsComeWhereThereWereNone", placed(Kind::None, no_atoms, no_files),
     [](InputEditor& editor) { editor.set_geometry(water); }, placed(Kind::Atoms, water, no_files)},
    {"AtomsAreReplacedByMore", placed(Kind::Atoms, {hydrogen}, no_files),
     [](InputEditor& editor) { editor.set_geometry(water); }, placed(Kind::Atoms, water, no_files)},
    {"AtomsAreReplacedByFewer", placed(Kind::Atoms, water, no_files),
     [](InputEditor& editor) { editor.set_geometry(std::vector<AtomRecord>{hydrogen}); },
     placed(Kind::Atoms, {hydrogen}, no_files)},
    {"AtomsTakeThePlaceOfFiles", placed(Kind::XyzFile, no_atoms, {"a.xyz", "b.xyz"}),
     [](InputEditor& editor) { editor.set_geometry(water); }, placed(Kind::Atoms, water, no_files)},
    {"AtomsTakeThePlaceOfATrajectory", placed(Kind::XyzTrajectory, {hydrogen}, {"a.xyz"}),
     [](InputEditor& editor) { editor.set_geometry(water); }, placed(Kind::Atoms, water, no_files)},
    {"StrayFilesBesideAtomsGo", placed(Kind::Atoms, {hydrogen}, {"a.xyz"}),
     [](InputEditor& editor) { editor.set_geometry(water); }, placed(Kind::Atoms, water, no_files)},
    {"NoAtomsMakeAnEmptyList", placed(Kind::XyzFile, {hydrogen}, {"a.xyz"}),
     [](InputEditor& editor) { editor.set_geometry(no_atoms); },
     placed(Kind::Atoms, no_atoms, no_files)},
    {"ChargeAndMultiplicityWithoutALineStayToo", uncharged(Kind::None, no_atoms, no_files),
     [](InputEditor& editor) { editor.set_geometry(water); },
     uncharged(Kind::Atoms, water, no_files)},
    {"AtomsAreStoredAsTheyAre", placed(Kind::None, no_atoms, no_files),
     [](InputEditor& editor) { editor.set_geometry(odd_atoms); },
     placed(Kind::Atoms, odd_atoms, no_files)},
    {"TheOwnAtomsAreKept", placed(Kind::XyzFile, water, {"a.xyz"}),
     [](InputEditor& editor) { editor.set_geometry(editor.document().geometry.atoms); },
     placed(Kind::Atoms, water, no_files)},
    {"CoreAtomsAreStoredAsTheyAre", placed(Kind::XyzFile, water, {"a.xyz"}),
     [](InputEditor& editor) { editor.set_geometry(odd_molecule); },
     placed(Kind::Atoms, odd_atoms, no_files)},
    {"NoCoreAtomsMakeAnEmptyList", uncharged(Kind::XyzTrajectory, water, {"a.xyz"}),
     [](InputEditor& editor) { editor.set_geometry(kelp::core::Geometry()); },
     uncharged(Kind::Atoms, no_atoms, no_files)},
};

INSTANTIATE_TEST_SUITE_P(Table, SetGeometry, testing::ValuesIn(set_geometry_rows),
                         row_name<EditCase>);

class AddAtom : public testing::TestWithParam<EditCase> {};

TEST_P(AddAtom, GivesTheDocument) { expect_edit(GetParam()); }

const EditCase add_atom_rows[] = {
    {"TheFirstOneMakesAList", placed(Kind::None, no_atoms, no_files),
     [](InputEditor& editor) { editor.add_atom(oxygen); }, placed(Kind::Atoms, {oxygen}, no_files)},
    {"MoreAreKeptInTheOrderOfTheCalls", placed(Kind::Atoms, no_atoms, no_files),
     [](InputEditor& editor) {
       editor.add_atom(hydrogen);
       editor.add_atom(oxygen);
       editor.add_atom(hydrogen);
     },
     placed(Kind::Atoms, {hydrogen, oxygen, hydrogen}, no_files)},
    {"AnAtomReplacesFiles", placed(Kind::XyzFile, no_atoms, {"a.xyz", "b.xyz"}),
     [](InputEditor& editor) { editor.add_atom(oxygen); }, placed(Kind::Atoms, {oxygen}, no_files)},
    {"AnAtomReplacesATrajectory", uncharged(Kind::XyzTrajectory, no_atoms, {"a.xyz"}),
     [](InputEditor& editor) { editor.add_atom(oxygen); },
     uncharged(Kind::Atoms, {oxygen}, no_files)},
    {"AnAtomReplacesAnUnknownKind", placed(Kind{7}, water, {"a.xyz"}),
     [](InputEditor& editor) { editor.add_atom(oxygen); }, placed(Kind::Atoms, {oxygen}, no_files)},
    {"AtomsThatWereNotInForceGo", placed(Kind::XyzFile, water, {"a.xyz"}),
     [](InputEditor& editor) { editor.add_atom(oxygen); }, placed(Kind::Atoms, {oxygen}, no_files)},
    {"AtomsWithoutAKindGo", placed(Kind::None, water, {"a.xyz"}),
     [](InputEditor& editor) { editor.add_atom(oxygen); }, placed(Kind::Atoms, {oxygen}, no_files)},
    {"StrayFilesBesideAtomsStay", placed(Kind::Atoms, water, {"a.xyz"}),
     [](InputEditor& editor) { editor.add_atom(oxygen); },
     placed(Kind::Atoms, {water[0], water[1], water[2], oxygen}, {"a.xyz"})},
    {"AnAtomIsStoredAsItIs", placed(Kind::Atoms, no_atoms, no_files),
     [](InputEditor& editor) {
       for (const AtomRecord& atom : odd_atoms) editor.add_atom(atom);
     },
     placed(Kind::Atoms, odd_atoms, no_files)},
    {"ACoreAtomIsStoredAsItIs", placed(Kind::Atoms, no_atoms, no_files),
     [](InputEditor& editor) {
       for (const kelp::core::Atom& atom : odd_molecule.atoms) editor.add_atom(atom);
     },
     placed(Kind::Atoms, odd_atoms, no_files)},
    {"ACoreAtomReplacesFiles", placed(Kind::XyzFile, water, {"a.xyz"}),
     [](InputEditor& editor) {
       editor.add_atom(kelp::core::Atom{"cl", 1.0, 2.0, 3.0});
     },
     placed(Kind::Atoms, {{"cl", 1.0, 2.0, 3.0}}, no_files)},
};

INSTANTIATE_TEST_SUITE_P(Table, AddAtom, testing::ValuesIn(add_atom_rows), row_name<EditCase>);

}  // namespace

}  // namespace kelp::input::quill
