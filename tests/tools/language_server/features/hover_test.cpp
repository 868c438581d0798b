#include <gtest/gtest.h>

#include "lint/lint.hpp"
#include "lint/pages.hpp"
#include "tools/language_server/support/marks.hpp"

namespace kelp::input::quill::language_server {

namespace {

const std::string water = "0 1\nO 0 0 0.117176\nH 0 0.756950 -0.468706\nH 0 -0.756950 -0.468706\n";

struct Row {
  std::string name;
  std::string marked;  // the cursor, and the range that the text is about
  std::string text;
};

class Hover : public testing::TestWithParam<Row> {};

TEST_P(Hover, SaysWhatTheReaderMadeOfTheLine) {
  const MarkedSource source = without_marks(GetParam().marked);
  const Snapshot snapshot = snapshot_of(source.text);
  const Json answer = hover(snapshot, source.cursor, World().surroundings());
  ASSERT_TRUE(answer.is_object());
  EXPECT_EQ(answer["contents"], Json({{"kind", "plaintext"}, {"value", GetParam().text}}));
  EXPECT_EQ(with_marks(source, ranges_of(Json::array({answer}), snapshot)),
            without_cursor(GetParam().marked));
}

const Row rows[] = {
    {"OfATask", "[[#o^pt]]\n", "command 1, a task\nopt"},
    {"OfAnAssignment", "#opt\n[[#mod^el]] = 'a b'\n", "command 2\nmodel has the value a b"},
    {"OfAnEmptyAssignment", "[[#mod^el]] =\n", "command 1\nmodel has the value (empty)"},
    {"OfAParameterList", "[[#op^t]](maxiter=50, tight)\n",
     "command 1, a task\nopt has 2 parameters"},
    {"OfAParameter", "#opt(maxiter=50, [[ti^ght]])\n",
     "command 1, a task\nopt has 2 parameters\nparameter 2: tight"},
    {"OfAParameterWithAValue", "#opt(=1,, [[^maxiter]] = \"50\")\n",
     "command 1, a task\nopt has 1 parameter\nparameter 1: maxiter with the value 50"},
    {"OfTheValueOfAParameter", "#grid(a, b=[['1, ^2']])\n",
     "command 1\ngrid has 2 parameters\nparameter 2: b with the value 1, 2"},
    {"OfAParameterWithAnEmptyValue", "#grid([[^a]]=, b)\n",
     "command 1\ngrid has 2 parameters\nparameter 1: a with the value (empty)"},
    {"OfACharge", "[[^-1]] 2\nO 0 0 0\n", "charge and multiplicity\ncharge -1, multiplicity 2"},
    {"OfAnAtom", "0 1\nO 0 0 0\n[[C^L]] 0 0 1\n", "atom 2\natom 2: Cl, element 17"},
    {"OfAnAtomBetweenItsPieces", "0 1\n[[Xx ^  0 0 1]]\n",
     "atom 1\natom 1: Xx, which is not an element"},
    {"OfAReference", "0 1\nXYZ [[a^.xyz]]\n", "XYZ reference 1"},
    {"OfRawText", water + "[[please ^call]]\n", "raw text"},
    {"OfADroppedLine", water + "[[B 1 ^x]]\n", "dropped"},
    {"OfAPostFile", water + "[[PO^ST]] a.dat\n",
     "post file\nPOST path: Name a post-processing file"},
    {"OfAnAtomConstraint", water + "[[^C]] 2\n",
     "atom constraint\nC i: Keep an atom in its place\natom 2: H, element 1"},
    {"OfABondConstraint", water + "[[^B]] 1 2\n",
     "bond constraint\nB i j: Keep the distance of two atoms fixed\n"
     "now 0.9572 in the unit of the coordinates\natom 1: O, element 8\natom 2: H, element 1"},
    {"OfAnAtomNumber", water + "B 1 [[^2]]\n",
     "bond constraint\nB i j: Keep the distance of two atoms fixed\n"
     "now 0.9572 in the unit of the coordinates\natom 2: H, element 1"},
    {"OfAnAngleConstraint", water + "C 1\n[[^a]] 2 1 3\n",
     "angle constraint\nA i j k: Keep the angle of three atoms fixed\nnow 104.52 degrees\n"
     "atom 2: H, element 1\natom 1: O, element 8\natom 3: H, element 1"},
    {"OfAScan", water + "[[^S]] 1 2 1.50 10\n",
     "scan\nS i j [k [l]] value steps: Scan a distance, angle or dihedral\n"
     "bond 1 2, value 1.5, 10 steps\nnow 0.9572 in the unit of the coordinates\n"
     "atom 1: O, element 8\natom 2: H, element 1"},
    {"OfAConstraintWithAnAtomThatDoesNotExist", water + "B 1 [[^4]]\n",
     "bond constraint\nB i j: Keep the distance of two atoms fixed"},
    {"OfAnAngleThatIsNotDefined", water + "C 1\nA [[^1]] 1 2\n",
     "angle constraint\nA i j k: Keep the angle of three atoms fixed\natom 1: O, element 8"},
    {"OfADihedralConstraint", "C 1 0 0\nC 0 0 0\nC 0 0 1\nC 0 1 1\n[[^D]] 1 2 3 4\n",
     "dihedral constraint\nD i j k l: Keep the dihedral of four atoms fixed\nnow 90 degrees\n"
     "atom 1: C, element 6\natom 2: C, element 6\natom 3: C, element 6\natom 4: C, element 6"},
};

INSTANTIATE_TEST_SUITE_P(Table, Hover, testing::ValuesIn(rows),
                         [](const auto& row) { return row.param.name; });

TEST(Hover, IsAbsentOnBlankLines) {
  EXPECT_TRUE(hover(snapshot_of(""), 0, World().surroundings()).is_null());
  EXPECT_TRUE(hover(snapshot_of("#opt\n \n0 1\n"), 6, World().surroundings()).is_null());
}

TEST(Hover, LooksUpAtomsInTheXyzFile) {
  World world;
  world.xyz = "2\nhydrogen\nH 0 0 0\nH 0 0 0.74\n";
  EXPECT_EQ(hover(snapshot_of("XYZ a.xyz\nB 1 2\n"), 12, world.surroundings())["contents"]["value"],
            "bond constraint\nB i j: Keep the distance of two atoms fixed\n"
            "now 0.74 in the unit of the coordinates\natom 1: H, element 1");
}

TEST(Hover, IsMarkdownForClientsThatShowIt) {
  World world;
  world.client.has_markdown = true;
  const std::string text = water + "B 1 2\n";
  EXPECT_EQ(hover(snapshot_of(text), water.size(), world.surroundings())["contents"],
            Json({{"kind", "markdown"},
                  {"value",
                   "**bond constraint**  \n`B i j`: Keep the distance of two atoms fixed  \n"
                   "now **0.9572** in the unit of the coordinates  \natom 1: `O`, element 8  \n"
                   "atom 2: `H`, element 1"}}));
}

TEST(Hover, KeepsBackticksOfTheTextInMarkdown) {
  World world;
  world.client.has_markdown = true;
  EXPECT_EQ(hover(snapshot_of("#m = a``b`\n"), 1, world.surroundings())["contents"]["value"],
            "**command 1**  \n`m` has the value ``` a``b` ```");
}

TEST(Hover, HasThePagesOfFindings) {
  World world;
  const MarkedSource source = without_marks("#sp\n" + water + "B 1 ^9\n");
  world.findings = lint::find_all(lossless::read_text(source.text), lint::Options());
  ASSERT_EQ(world.findings.size(), 1U);
  std::string page(lint::page_of(world.findings[0].code));
  page.pop_back();
  const Snapshot snapshot = snapshot_of(source.text);
  EXPECT_EQ(hover(snapshot, source.cursor, world.surroundings())["contents"]["value"],
            "bond constraint\nB i j: Keep the distance of two atoms fixed\n\n" + page);
  EXPECT_EQ(hover(snapshot, source.cursor - 2, world.surroundings())["contents"]["value"],
            "bond constraint\nB i j: Keep the distance of two atoms fixed\natom 1: O, element 8");
}

}  // namespace

}  // namespace kelp::input::quill::language_server
