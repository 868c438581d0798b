#include "kelp/input/quill/lossless/proof.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>

#include "kelp/input/quill/editor.hpp"
#include "kelp/input/quill/lossless/wording.hpp"
#include "support/comparison.hpp"
#include "support/printing.hpp"

namespace kelp::input::quill::lossless {

namespace {

/// A document of which the canonical text is proved.
struct Row {
  std::string_view name;
  std::function<void(InputEditor&)> build;
  std::string explanation;
  std::optional<std::size_t> line = std::nullopt;
};

void PrintTo(const Row& row, std::ostream* out) { *out << row.name; }

PostCommand raw(std::string text) {
  return PostCommand(PostCommandKind::Raw, {}, std::nullopt, std::nullopt, {}, std::move(text));
}

const Row rows[] = {
    {"ACompleteInput",
     [](InputEditor& editor) {
       editor.set_task("opt", {{"maxiter", "50"}, {"tight"}});
       editor.set_model("m1");
       editor.set_charge_and_multiplicity(0, 1);
       editor.set_geometry({{"O", 0.0, 0.0, 0.1173}, {"H", 0.0, 0.7572, -0.4692}});
       editor.add_bond_constraint(1, 2);
       editor.add_angle_constraint(1, 2, 3);
       editor.add_scan({1, 2}, 1.5, 10);
       editor.set_post_file("out file");
       editor.add_post_command(raw("free text"));
     },
     ""},
    {"NothingAtAll", [](InputEditor&) {}, ""},
    {"ATrajectoryWithoutAPath",
     [](InputEditor& editor) {
       QuillInput input;
       input.geometry.kind = GeometryKind::XyzTrajectory;
       editor = InputEditor(input);
     },
     ""},
    {"AnAngleConstraintAfterAtoms",
     [](InputEditor& editor) {
       editor.set_flag("opt");
       editor.set_charge_and_multiplicity(0, 1);
       editor.set_geometry({{"O", 0, 0, 0}, {"H", 0, 0, 1}, {"H", 0, 1, 0}});
       editor.add_angle_constraint(1, 2, 3);
     },
     "line 8 would be read as an atom of element A, not as an angle constraint; put another "
     "post-processing line before it to avoid that",
     8},
    {"AnAngleConstraintAfterAnotherLine",
     [](InputEditor& editor) {
       editor.set_geometry({{"O", 0, 0, 0}});
       editor.add_atom_constraint(1);
       editor.add_angle_constraint(1, 2, 3);
     },
     ""},
    {"AnAngleConstraintAfterReferences",
     [](InputEditor& editor) {
       editor.set_xyz_file("a");
       editor.add_angle_constraint(1, 2, 3);
     },
     ""},
    {"RawTextOfFourTokensAfterAtoms",
     [](InputEditor& editor) {
       editor.set_geometry({{"O", 0, 0, 0}});
       editor.add_post_command(raw("B 1 2 3"));
     },
     "line 3 would be read as an atom of element B, not as raw text; put another post-processing "
     "line before it to avoid that",
     3},
    {"RawTextLikeAnAtomWithoutGeometry",
     [](InputEditor& editor) {
       editor.set_flag("opt");
       editor.add_post_command(raw("Fe 0 0 0"));
     },
     "line 3 would be read as an atom of element Fe, not as raw text; put another post-processing "
     "line before it to avoid that",
     3},
    {"RawTextLikeACommandAfterTheHeader",
     [](InputEditor& editor) {
       editor.set_flag("opt");
       editor.add_post_command(raw("# note"));
     },
     "line 3 would be read as a header command, not as raw text; put another post-processing line "
     "before it to avoid that",
     3},
    {"RawTextLikeACommandAfterTheGeometry",
     [](InputEditor& editor) {
       editor.set_charge_and_multiplicity(0, 1);
       editor.add_post_command(raw("# note"));
     },
     ""},
    {"RawTextOfTwoNumbers", [](InputEditor& editor) { editor.add_post_command(raw("1 2")); },
     "line 1 would be read as charge and multiplicity, not as raw text; put another "
     "post-processing line before it to avoid that",
     1},
    {"RawTextLikeAReference",
     [](InputEditor& editor) {
       editor.set_xyz_file("a");
       editor.add_post_command(raw("xyz b"));
     },
     "line 3 would be read as an XYZ reference, not as raw text; put another post-processing line "
     "before it to avoid that",
     3},
    {"RawTextLikeAReferenceWithoutAPath",
     [](InputEditor& editor) {
       editor.set_xyz_file("a");
       editor.add_post_command(raw("XYZ"));
     },
     "line 3 would be read as an XYZ reference without a path, not as raw text; put another "
     "post-processing line before it to avoid that",
     3},
    {"RawTextLikeATrajectory",
     [](InputEditor& editor) {
       editor.set_charge_and_multiplicity(0, 1);
       editor.add_post_command(raw("XYZTRAJ t"));
     },
     "line 3 would be read as a trajectory reference, not as raw text; put another post-processing "
     "line before it to avoid that",
     3},
    {"RawTextLikeATrajectoryWithoutAPath",
     [](InputEditor& editor) {
       editor.set_charge_and_multiplicity(0, 1);
       editor.add_post_command(raw("XYZTRAJ"));
     },
     "line 3 would be read as a trajectory reference without a path, not as raw text; put another "
     "post-processing line before it to avoid that",
     3},
    {"RawTextThatIsDropped",
     [](InputEditor& editor) {
       editor.add_atom_constraint(1);
       editor.add_post_command(raw("B 1 x"));
       editor.add_post_command(raw("y"));
     },
     "line 2 would be dropped with a warning, not read as raw text", 2},
    {"RawTextLikeAConstraint", [](InputEditor& editor) { editor.add_post_command(raw("b 1 2")); },
     "line 1 would be read differently: post-processing line 1 is a bond constraint instead of raw "
     "text",
     1},
    {"RawTextWithOuterBlanks",
     [](InputEditor& editor) {
       editor.set_xyz_file("a");
       editor.add_post_command(raw(" x"));
     },
     "line 3 would be read differently: the text of post-processing line 1 is 'x' instead of ' x'",
     3},
    {"RawTextOfTwoLines", [](InputEditor& editor) { editor.add_post_command(raw("x\ny")); },
     "line 1 would be read differently: the text of post-processing line 1 is 'x' instead of "
     "'x\ny'",
     1},
    {"EmptyRawText",
     [](InputEditor& editor) {
       editor.add_post_command(raw("x"));
       editor.add_post_command(raw(""));
     },
     "no line would be read as raw text ('')"},
    {"APostFileWithoutAPath", [](InputEditor& editor) { editor.set_post_file(""); },
     "line 1 would be read differently: post-processing line 1 is raw text instead of a post file",
     1},
    {"APostFileWithABlankInFront", [](InputEditor& editor) { editor.set_post_file(" a"); },
     "line 1 would be read differently: the path of post-processing line 1 is 'a' instead of ' a'",
     1},
    {"AReferenceWithABlankAfterIt",
     [](InputEditor& editor) {
       editor.set_xyz_files({"a", "b "});
     },
     "line 2 would be read differently: the path of XYZ reference 2 is 'b' instead of 'b '", 2},
    {"AReferenceWithoutAPath",
     [](InputEditor& editor) {
       editor.set_xyz_files({"a", ""});
     },
     "line 2 would be read as an XYZ reference without a path, not as an XYZ reference", 2},
    {"ATrajectoryWithAnEmptyPath", [](InputEditor& editor) { editor.set_xyz_trajectory(""); },
     "line 1 would be read as a trajectory reference without a path, not as a trajectory reference",
     1},
    {"AnEmptyListOfAtoms",
     [](InputEditor& editor) { editor.set_geometry(std::vector<AtomRecord>()); },
     "the coordinate section is absent instead of a list of atoms"},
    {"ASymbolWithADigit",
     [](InputEditor& editor) {
       editor.set_geometry({{"O", 0, 0, 0}, {"C1", 0, 0, 0}, {"H", 0, 0, 0}});
     },
     "line 2 would be read as raw text, not as an atom of element C1", 2},
    {"ASymbolThatMakesADroppedLine",
     [](InputEditor& editor) {
       editor.set_geometry({{"S 1", 0, 0, 0}});
     },
     "line 1 would be dropped with a warning, not read as an atom of element S 1", 1},
    {"ASymbolInLowerCase",
     [](InputEditor& editor) {
       editor.set_geometry({{"cl", 0, 0, 0}});
     },
     "line 1 would be read differently: the symbol of atom 1 is 'Cl' instead of 'cl'", 1},
    {"ASymbolLikeAKeyword",
     [](InputEditor& editor) {
       editor.set_geometry({{"XYZ", 0, 0, 0}});
     },
     "line 1 would be read as an XYZ reference, not as an atom of element XYZ", 1},
    {"ACoordinateThatTouchesTheOneBefore",
     [](InputEditor& editor) {
       editor.set_geometry({{"O", 0, 1234567, 0}});
     },
     "line 1 would be read as raw text, not as an atom of element O", 1},
    {"AScanValueOfSevenDigits",
     [](InputEditor& editor) {
       editor.add_scan({1, 2}, 1.234567, 10);
     },
     "line 1 would be read differently: the scan value of post-processing line 1 is 1.23457 "
     "instead "
     "of 1.234567",
     1},
    {"AScanOfFiveAtoms",
     [](InputEditor& editor) {
       editor.add_scan({1, 2, 3, 4, 5}, 1, 10);
     },
     "line 1 would be read differently: post-processing line 1 is raw text instead of a scan", 1},
    {"ANameThatNeedsNoQuoteButACommandOfAnotherKind",
     [](InputEditor& editor) { editor.set_flag("a=b"); },
     "line 1 would be read differently: the name of command 1 is 'a' instead of 'a=b'", 1},
    {"ANameThatIsNotAHeaderLineAnyMore", [](InputEditor& editor) { editor.set_flag("a\nb"); },
     "line 1 would be read differently: the name of command 1 is 'a' instead of 'a\nb'", 1},
    {"AChargeThatIsNotWritten",
     [](InputEditor& editor) {
       QuillInput input;
       input.geometry.charge = 1;
       editor = InputEditor(input);
     },
     "the charge is 0 instead of 1"},
    {"ASecondTrajectory",
     [](InputEditor& editor) {
       QuillInput input;
       input.geometry.kind = GeometryKind::XyzTrajectory;
       input.geometry.xyz_files = {"t", "u"};
       editor = InputEditor(input);
     },
     "the number of paths is 1 instead of 2"},
};

class ProofOfCanonicalText : public testing::TestWithParam<Row> {};

TEST_P(ProofOfCanonicalText, HoldsOrNamesTheLineAndTheReason) {
  InputEditor editor{QuillInput()};
  GetParam().build(editor);
  const std::string text = editor.to_string();
  const Proof proof = prove(text, editor.document());
  EXPECT_EQ(words(proof, editor.document()), GetParam().explanation) << text;
  EXPECT_EQ(proof.explanation.has_value(), !GetParam().explanation.empty());
  EXPECT_EQ(proof.line(), GetParam().line);
  EXPECT_EQ(proof.holds(), GetParam().explanation.empty());
  EXPECT_EQ(proof.found, parse_string(text));
}

INSTANTIATE_TEST_SUITE_P(Table, ProofOfCanonicalText, testing::ValuesIn(rows),
                         [](const auto& row) { return std::string(row.param.name); });

struct TextRow {
  std::string_view name;
  std::string text;
  std::string wanted;  // the text of the document that is wanted
  std::string explanation;
};

void PrintTo(const TextRow& row, std::ostream* out) { *out << testing::PrintToString(row.text); }

const TextRow text_rows[] = {
    {"LinesThatWereAlwaysDropped", "O 0 0 0\nB 1 x\nC 1\nC y\n", "O 0 0 0\nC 1\n", ""},
    {"ReferencesThatNeverHadAPath", "XYZ\nXYZ a\nXYZ\nC 1\n", "XYZ a\nC 1\n", ""},
    {"ADifferenceAfterALineThatWasAlwaysDropped", "O 0 0 0\nB 1 x\nC 1\n", "O 0 0 0\nC 2\n",
     "line 3 would be read differently: the list of atom numbers of post-processing line 1 is 1 "
     "instead of 2"},
    {"ADifferenceAfterAReferenceThatNeverHadAPath", "XYZ\nXYZ a\nC 1\n", "XYZ a\nC 2\n",
     "line 3 would be read differently: the list of atom numbers of post-processing line 1 is 1 "
     "instead of 2"},
    {"ADifferenceAfterEverySectionWithATrajectory", "#irc\n0 1\nXYZTRAJ t\nC 1\n",
     "#irc\n0 1\nXYZTRAJ t\nC 2\n",
     "line 4 would be read differently: the list of atom numbers of post-processing line 1 is 1 "
     "instead of 2"},
    {"ADifferenceAfterATrajectoryWithoutAPath", "#irc\nXYZTRAJ\nC 1\n", "#irc\nXYZTRAJ\nC 2\n",
     "line 3 would be read differently: the list of atom numbers of post-processing line 1 is 1 "
     "instead of 2"},
    {"ADroppedLineThatWouldBecomeAnAtom", "O 0 0 0\nA 1 2 3.5\nC 1\n", "O 0 0 0\nC 1\n",
     "line 2 would be read as an atom of element A, which is not in the document you asked for"},
    {"ALineTooManyAtTheEnd", "O 0 0 0\nC 1\nx\n", "O 0 0 0\nC 1\n",
     "line 3 would be read as raw text, which is not in the document you asked for"},
    {"AMissingCommand", "O 0 0 0\n", "#opt\nO 0 0 0\n",
     "line 1 would be read as an atom of element O, which is not in the document you asked for"},
    {"AMissingLastLine", "O 0 0 0\n", "O 0 0 0\nB 1 2\n",
     "no line would be read as a bond constraint ('B 1 2')"},
    {"AMissingAtomAtTheEnd", "O 0 0 0\n", "O 0 0 0\nH 0 0 1\n",
     "no line would be read as an atom of element H ('H        0.000000      0.000000      "
     "1.000000')"},
    {"AMissingChargeLineAtTheEnd", "", "-1 2\n",
     "no line would be read as charge and multiplicity ('-1 2')"},
    {"AMissingReferenceAtTheEnd", "XYZ a\n", "XYZ a\nXYZ b\n",
     "no line would be read as an XYZ reference ('XYZ b')"},
    {"AMissingTrajectory", "", "XYZTRAJ t\n",
     "no line would be read as a trajectory reference ('XYZTRAJ t')"},
    {"AMissingTrajectoryWithoutAPath", "", "XYZTRAJ\n",
     "no line would be read as a trajectory reference without a path ('XYZTRAJ')"},
    {"AMissingCommandAtTheEnd", "#a\n", "#a\n#b = \" c\"\n",
     "no line would be read as a header command ('#b = \" c\"')"},
    {"AChargeLineInPlaceOfRawTextWithItsOwnSpelling", "  3  4\n", "0 1\n  3  4\n",
     "line 1 would be read differently: the charge is 3 instead of 0"},
    {"RawTextThatWasReadFromALineOfItsOwnSpelling", "#a\nO 0 0 0\nb  1 2.0 3\n",
     "#a\nO 0 0 0\nx\nb  1 2.0 3\n",
     "line 3 would be read as an atom of element B, which is not in the document you asked for"},
    {"AConstraintFromALineOfItsOwnSpelling", "O 0 0 0\na  1 +2 3\n", "XYZ a\na  1 +2 3\n",
     "line 1 would be read as an atom of element O, which is not in the document you asked for"},
};

class ProofOfText : public testing::TestWithParam<TextRow> {};

TEST_P(ProofOfText, HoldsOrNamesTheLineAndTheReason) {
  const QuillInput wanted = parse_string(GetParam().wanted).input;
  const Proof proof = prove(GetParam().text, wanted);
  EXPECT_EQ(words(proof, wanted), GetParam().explanation);
  EXPECT_EQ(proof.holds(), GetParam().explanation.empty());
}

INSTANTIATE_TEST_SUITE_P(Table, ProofOfText, testing::ValuesIn(text_rows),
                         [](const auto& row) { return std::string(row.param.name); });

}  // namespace

TEST(Proof, RecognisesALineByTheSpellingItWasReadFrom) {
  QuillInput wanted = parse_string("XYZ a\na  1 +2 3\n").input;
  wanted.geometry.kind = GeometryKind::Atoms;
  wanted.geometry.atoms = {{"O", 0, 0, 0}};
  wanted.geometry.xyz_files.clear();
  EXPECT_EQ(words(prove("O 0 0 0\na  1 +2 3\n", wanted), wanted),
            "line 2 would be read as an atom of element A, not as an angle constraint; put another "
            "post-processing line before it to avoid that");
}

TEST(Proof, AcceptsChangesOfNumbersUpToTheLimitAndTellsThem) {
  QuillInput wanted;
  wanted.geometry.kind = GeometryKind::Atoms;
  wanted.geometry.atoms = {{"O", 0.5000004, 0, 0.25}};
  const Proof accepted = prove(wanted.to_string(), wanted, 1e-6);
  EXPECT_TRUE(accepted.holds());
  EXPECT_FALSE(accepted.explanation.has_value());
  EXPECT_EQ(accepted.comparison.number_changes.count, 1U);
  EXPECT_NEAR(accepted.comparison.number_changes.largest, 4e-7, 1e-12);
  const Proof refused = prove(wanted.to_string(), wanted);
  EXPECT_FALSE(refused.holds());
  EXPECT_EQ(words(refused, wanted),
            "line 1 would be read differently: x of atom 1 is 0.5 instead of 0.5000004");
}

TEST(Proof, HasEveryDifference) {
  InputEditor editor{QuillInput()};
  editor.set_geometry({{"O", 0, 0, 0}});
  editor.add_angle_constraint(1, 2, 3);
  editor.set_post_file(" a");
  const Proof proof = prove(editor.to_string(), editor.document());
  std::vector<std::string> all;
  for (const Difference& difference : proof.comparison.differences)
    all.push_back(words(difference));
  EXPECT_THAT(all,
              testing::ElementsAre(
                  "the number of atoms is 2 instead of 1",
                  "post-processing line 1 is a post file instead of an angle constraint",
                  "the list of atom numbers of post-processing line 1 is absent instead of 1 2 3",
                  "the path of post-processing line 1 is 'a' instead of ''",
                  "the number of post-processing lines is 1 instead of 2"));
}

}  // namespace kelp::input::quill::lossless
