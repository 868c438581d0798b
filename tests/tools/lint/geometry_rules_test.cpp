#include <gtest/gtest.h>

#include "tools/lint/marked_rows.hpp"

namespace kelp::input::quill::lint {

namespace {

const MarkedRow rows[] = {
    {"ADecimalCommaInTheSecondAtom",
     "#opt\n"
     "0 1\n"
     "H 0 0 0\n"
     "H 0 0 1,5\n"
     "      ^^^ QL104 this line ended the atoms after 1 atom: '1,5' is not a number; 2 further "
     "lines that look like atoms are kept as raw text\n"
     "H 0 0 3\n"
     "H 0 0 4,5\n"},
    {"TwoPointsInANumber",
     "#opt\n"
     "0 1\n"
     "H 0 0 0\n"
     "H 0 0 1.0.0\n"
     "      ^^^^^ QL104 this line ended the atoms after 1 atom: '1.0.0' is not a number\n"},
    {"AUnicodeMinus",
     "#opt\n"
     "0 1\n"
     "H 0 0 0\n"
     "H 0 0 −1\n"
     "      ^^^^ QL104 this line ended the atoms after 1 atom: '−1' is not a number\n"},
    {"ACommentAfterAnAtom",
     "#opt\n"
     "0 1\n"
     "H 0 0 0\n"
     "H 0 0 1 # note\n"
     "        ^ QL104 this line ended the atoms after 1 atom: '#' is a fifth word; one further "
     "line that looks like an atom is kept as raw text\n"
     "H 0 0 2\n"},
    {"AMissingNumber",
     "#opt\n"
     "0 1\n"
     "H 0 0 0\n"
     "H 0 1.0\n"
     "       < QL104 this line ended the atoms after 1 atom: a number is missing; one further line "
     "that looks like an atom is kept as raw text\n"
     "H 0 0 2\n"},
    {"ANoBreakSpaceBetweenNumbers",
     "#opt\n"
     "0 1\n"
     "H 0 0 0\n"
     "H 0 0\302\2401\n"
     "    ^^^^ QL104 this line ended the atoms after 1 atom: '0\302\2401' is not a number\n"},
    {"ANoBreakSpaceAfterTheSymbol",
     "#opt\n"
     "0 1\n"
     "H 0 0 0\n"
     "H\302\2400 0 1\n"
     "^^^^ QL104 this line ended the atoms after 1 atom: 'H\302\2400' is not a symbol made of "
     "letters\n"},
    {"AFaultInTheFirstAtom",
     "#opt\n"
     "0 1\n"
     "H 0 0 1,5\n"
     "      ^^^ QL104 no atoms are read because of this line: '1,5' is not a number; one further "
     "line that looks like an atom is kept as raw text\n"
     "H 0 0 0\n"},
    {"ALabelledFirstAtom",
     "#opt\n"
     "O1 0 0 0.117\n"
     "^^ QL101 there are no atoms: 'O1' is not a symbol made of letters; 2 further lines that look "
     "like atoms are kept as raw text\n"
     "H2 0 0.757 -0.469\n"
     "H 0 -0.757 -0.469\n"},
    {"ALabelledAtomAfterOthers",
     "#opt\n"
     "0 1\n"
     "O 0 0 0.117\n"
     "H_2 0 0.757 -0.469\n"
     "^^^ QL101 the atoms end after 1 atom: 'H_2' is not a symbol made of letters\n"},
    {"AtomicNumbersInPlaceOfSymbols",
     "#opt\n"
     "0 1\n"
     "8 0 0 0.117\n"
     "^ QL101 there are no atoms: '8' is not a symbol made of letters; one further line that looks "
     "like an atom is kept as raw text\n"
     "1 0 0.757 -0.469\n"},
    {"AnIndexColumn",
     "#opt\n"
     "0 1\n"
     "1 O 0 0 0\n"
     "^ QL102 there are no atoms: the line begins with the number '1', and has five words; one "
     "further line that looks like an atom is kept as raw text\n"
     "2 H 0 0 1\n"},
    {"AChargeLineWithAPoint",
     "#opt\n"
     "0 1.0\n"
     "  ^^^ QL103 this is not read as charge and multiplicity: '1.0' does not fit; no coordinates "
     "are read, and 2 lines that look like them are kept as raw text\n"
     "H 0 0 0\n"
     "H 0 0 0.741\n"},
    {"AChargeLineWithAThirdWord",
     "#opt\n"
     "0 1 x\n"
     "    ^ QL103 this is not read as charge and multiplicity: 'x' does not fit; no coordinates "
     "are read, and one line that looks like them is kept as raw text\n"
     "H 0 0 0\n"},
    {"AChargeAlone",
     "#opt\n"
     "0\n"
     " < QL103 this is not read as charge and multiplicity; no coordinates are read, and one line "
     "that looks like them is kept as raw text\n"
     "H 0 0 0\n"},
    {"AChargeWithAUnicodeMinus",
     "#opt\n"
     "−1 1\n"
     "^^^^ QL103 this is not read as charge and multiplicity: '−1' does not fit; no coordinates "
     "are read, and one line that looks like them is kept as raw text\n"
     "F 0 0 0\n"},
    {"AChargeLineThatHidesAReference",
     "#opt\n"
     "0 1.0\n"
     "  ^^^ QL103 this is not read as charge and multiplicity: '1.0' does not fit; no coordinates "
     "are read, and one line that looks like them is kept as raw text\n"
     "XYZ water.xyz\n"},
    {"TwoNumbersThatHideNothing",
     "#opt\n"
     "0 1.0\n"
     "  ^^^ QL103 this is not read as charge and multiplicity: '1.0' does not fit\n"},
    {"ABondConstraintWithAThirdAtom",
     "#opt\n"
     "0 1\n"
     "O 0.0 0.0 0.117\n"
     "H 0.0 0.757 -0.469\n"
     "H 0.0 -0.757 -0.469\n"
     "B 1 2 3\n"
     "^ QL105 'B' with three numbers right after the atoms is read as one more atom of B\n"},
    {"AnAtomConstraintWithThreeAtomsAfterABlankLine",
     "#opt\n"
     "0 1\n"
     "O 0 0 0\n"
     "H 0 0 1\n"
     "H 0 1 0\n"
     "\n"
     "C 1 2 3\n"
     "^ QL105 'C' with three numbers right after the atoms is read as one more atom of C\n"},
    {"AScanWithTooFewWords",
     "#opt\n"
     "0 1\n"
     "O 0.0 0.0 0.117\n"
     "H 0.0 0.757 -0.469\n"
     "H 0.0 -0.757 -0.469\n"
     "S 1 2 3\n"
     "^ QL105 'S' with three numbers right after the atoms is read as one more atom of S\n"
     "B 1 3 2\n"
     "^ QL105 'B' with three numbers right after the atoms is read as one more atom of B\n"},
    {"AnAngleConstraintAfterTheAtoms",
     "#opt\n"
     "0 1\n"
     "O 0.0 0.0 0.117\n"
     "H 0.0 0.757 -0.469\n"
     "H 0.0 -0.757 -0.469\n"
     "a 2 1 3\n"
     "^ QL106 'a' with three numbers right after the atoms is read as an atom of the unknown "
     "element A\n"},
    {"AnAngleAndABondConstraintAfterTheAtoms",
     "#opt\n"
     "0 1\n"
     "O 0.0 0.0 0.117\n"
     "H 0.0 0.757 -0.469\n"
     "H 0.0 -0.757 -0.469\n"
     "A 2 1 3\n"
     "^ QL106 'A' with three numbers right after the atoms is read as an atom of the unknown "
     "element A\n"
     "B 1 2\n"},
    {"CarbonAtAPlaceOfIntegersIsCarbon",
     "#sp\n"
     "0 1\n"
     "O 0 0 0\n"
     "C 1 2 3\n"},
    {"CarbonAtTheSameIntegersTwiceIsCarbon",
     "#sp\n"
     "0 1\n"
     "O 0.0 0.0 0.5\n"
     "C 1 1 3\n"},
    {"NoAtomsButAnAngleAlone",
     "#sp\n"
     "0 1\n"
     "A 2 1 3\n"
     "^ QL112 unknown element symbol 'A'\n"},
    {"ACommandAfterTheAtoms",
     "#opt\n"
     "0 1\n"
     "He 0 0 0\n"
     "#freq\n"
     "^^^^^ QL107 the header is over, so '#freq' is kept as raw text\n"
     "  # model = m1\n"
     "  ^^^^^^^^^^^^ QL107 the header is over, so '# model = m1' is kept as raw text\n"},
    {"AReferenceAfterTheAtoms",
     "#opt\n"
     "0 1\n"
     "He 0 0 0\n"
     "XYZ water.xyz\n"
     "^^^^^^^^^^^^^ QL108 the coordinates are over, so the XYZ line is kept as raw text\n"
     "xyztraj path.xyz\n"
     "^^^^^^^^^^^^^^^^ QL108 the coordinates are over, so the XYZTRAJ line is kept as raw text\n"},
    {"ATrajectoryAfterAReference",
     "#opt\n"
     "0 1\n"
     "XYZ water.xyz\n"
     "XYZTRAJ path.xyz\n"
     "^^^^^^^^^^^^^^^^ QL108 the coordinates are over, so the XYZTRAJ line is kept as raw text\n"},
    {"NoChargeLine",
     "#opt\n"
     "He 0 0 0\n"
     "^^^^^^^^ QL109 no line gives charge and multiplicity, so the reader assumes 0 and 1\n"},
    {"NoChargeLineForAReferenceIsFine",
     "#opt\n"
     "XYZ water.xyz\n"},
    {"NotANumberAndInfinity",
     "#opt\n"
     "0 1\n"
     "He nan 0 -inf\n"
     "   ^^^ QL110 the coordinate 'nan' is not a finite number\n"
     "         ^^^^ QL110 the coordinate '-inf' is not a finite number\n"},
    {"AMultiplicityOfZero",
     "#opt\n"
     "0 0\n"
     "  ^ QL111 the multiplicity '0' is below 1\n"
     "He 0 0 0\n"},
    {"AnUnknownElement",
     "#opt\n"
     "0 1\n"
     "xx 0 0 0\n"
     "^^ QL112 unknown element symbol 'Xx'\n"
     "He 0 0 3\n"},
    {"NoCoordinates",
     "#opt\n"
     "< QL113 No QUILL coordinate section found\n"},
    {"ReferencesWithoutAPath",
     "#opt\n"
     "0 1\n"
     "XYZ\n"
     "^^^ QL114 the XYZ reference has no file path\n"
     "  xyz\n"
     "  ^^^ QL114 the xyz reference has no file path\n"},
    {"ATrajectoryWithoutAPath",
     "#opt\n"
     "XYZTRAJ\n"
     "^^^^^^^ QL114 the XYZTRAJ reference has no file path\n"},
    {"ALineThatLooksLikeNoAtom",
     "#opt\n"
     "0 1\n"
     "He 0 0 0\n"
     "He is the atom, and this is a note\n"},
    {"ATypedLineAfterTheAtoms",
     "#opt\n"
     "0 1\n"
     "H 0 0 0\n"
     "H 0 0 0.741\n"
     "D 1 2 3 4 5\n"
     "^^^^^^^^^^^ QL302 'D' takes four atom numbers, here five; the line is kept as raw text\n"
     "B 1 2\n"},
    {"SulfurWithAFifthWord",
     "#opt\n"
     "0 1\n"
     "O 0.0 0.0 0.0\n"
     "S 0.1 0.2 1.5 0.5\n"
     "  ^^^ QL301 the line is dropped: '0.1' is not a number that 'S' takes\n"
     "O 0.0 0.0 3.0\n"},
    {"AScanWithADecimalCommaIsNoAtom",
     "#opt\n"
     "0 1\n"
     "H 0 0 0\n"
     "H 0 0 0.741\n"
     "S 1 2 1,43 10\n"
     "      ^^^^ QL301 the line is dropped: '1,43' is not a number that 'S' takes\n"},
    {"ManyLinesAreLost",
     "#opt\n"
     "0 1\n"
     "H 0 0 0\n"
     "H 0 0 x1\n"
     "      ^^ QL104 this line ended the atoms after 1 atom: 'x1' is not a number; 3 further lines "
     "that look like atoms are kept as raw text\n"
     "H 0 0 2\n"
     "H 0 0 x\n"
     "C 0 0 4\n"
     "B 1 2\n"},
    {"AnEmptyText",
     "< QL009 nothing in the text is a command or a coordinate; the reader keeps all of it as "
     "text\n"},
};

class GeometryRules : public MarkedRows {};

TEST_P(GeometryRules, FindExactlyThis) { expect_marks(); }

INSTANTIATE_TEST_SUITE_P(Table, GeometryRules, testing::ValuesIn(rows), name_of_row);

}  // namespace

}  // namespace kelp::input::quill::lint
