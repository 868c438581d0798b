#include <gtest/gtest.h>

#include "lossless/editing/surgical_case.hpp"
#include "lossless/properties/edits.hpp"

namespace kelp::input::quill::lossless {

namespace {

const AddPostCommand bond{PostCommand(PostCommandKind::BondConstraint, {1, 2})};
const AddPostCommand angle{PostCommand(PostCommandKind::AngleConstraint, {1, 2, 3})};

const SurgicalCase rows[] = {
    {"IsAddedAfterTheLastOne", "O 0 0 0\nC 1\nC 2\n", {bond}, "O 0 0 0\nC 1\nC 2\nB 1 2\n", "+4"},
    {"SeveralStandInOrder",
     "O 0 0 0\nC 1\n",
     {bond, angle, AddPostCommand{raw_line("x  y")}},
     "O 0 0 0\nC 1\nB 1 2\nA 1 2 3\nx  y\n",
     "+3 +4 +5"},
    {"TheBlankLinesAtTheEndStayThere",
     "O 0 0 0\nC 1\n\n  \n\n",
     {bond},
     "O 0 0 0\nC 1\nB 1 2\n\n  \n\n",
     "+3"},
    {"IsAddedAfterADroppedLine", "O 0 0 0\nC x\n", {bond}, "O 0 0 0\nC x\nB 1 2\n", "+3"},
    {"IsASectionOfItsOwn",
     "#opt\n0 1\nO 0 0 0\n",
     {bond},
     "#opt\n0 1\nO 0 0 0\n\nB 1 2\n",
     "+4 +5"},
    {"UsesTheBlankLineThatIsThere", "O 0 0 0\n\n\n", {bond}, "O 0 0 0\n\nB 1 2\n\n", "+3"},
    {"UsesABlankLineWithBlanks", "O 0 0 0\n  \n", {bond}, "O 0 0 0\n  \nB 1 2\n", "+3"},
    {"DoesNotUseABlankLineWithoutAnEnd", "O 0 0 0\n  ", {bond}, "O 0 0 0\n\nB 1 2\n  ", "+2 +3"},
    {"ComesAfterTheHeader", "#opt", {bond}, "#opt\n\nB 1 2", "+2 +3"},
    {"IsAllThereIs", "", {bond}, "B 1 2\n", "+1"},
    {"ComesBeforeBlankLinesOnly", "\n\n", {bond}, "B 1 2\n\n\n", "+1"},
    {"ComesWithEverySection",
     "",
     {bond, SetXyzFiles{{"a"}}, SetChargeAndMultiplicity{0, 1}, SetFlag{"opt"}},
     "#opt\n\n0 1\nXYZ a\n\nB 1 2\n",
     "+1 +2 +3 +4 +5 +6"},
    {"ComesWithEverySectionBeforeBlankLines",
     "\n\n\n",
     {bond, SetXyzFiles{{"a"}}, SetFlag{"opt"}},
     "#opt\n\nXYZ a\n\nB 1 2\n\n",
     "+1 +3 +5"},
    {"ComesWithANewHeader",
     "O 0 0 0\n",
     {bond, SetFlag{"opt"}},
     "#opt\n\nO 0 0 0\n\nB 1 2\n",
     "+1 +2 +4 +5"},
    {"ComesWithANewHeaderLine",
     "#opt\n",
     {bond, SetFlag{"sp"}},
     "#opt\n#sp\n\nB 1 2\n",
     "+2 +3 +4"},
    {"ComesInPlaceOfTheHeader", "#opt\n", {bond, RemoveCommand{"opt"}}, "B 1 2\n", "-1 +1"},
    {"ComesInPlaceOfTheHeaderAfterABlankLine",
     "\n#opt\n",
     {bond, RemoveCommand{"opt"}},
     "\nB 1 2\n",
     "-2 +2"},
    {"ComesInPlaceOfALineAfterABlankLine",
     "#opt\n\n#sp\n",
     {bond, RemoveCommand{"sp"}},
     "#opt\n\nB 1 2\n",
     "-3 +3"},
    {"ComesInPlaceOfTheHeaderAndLeavesBlankLines",
     "#opt\n\n0 1\n",
     {bond, ClearChargeAndMultiplicity{}},
     "#opt\n\nB 1 2\n",
     "-3 +3"},
    {"EveryKind",
     "C 1\n",
     {angle, AddPostCommand{PostCommand(PostCommandKind::AtomConstraint, {7})},
      AddPostCommand{PostCommand(PostCommandKind::DihedralConstraint, {1, 2, 3, -4})},
      AddPostCommand{PostCommand(PostCommandKind::Scan, {1, 2}, 1.5, 10)},
      AddPostCommand{
          PostCommand(PostCommandKind::PostFile, {}, std::nullopt, std::nullopt, "my file")}},
     "C 1\nA 1 2 3\nC 7\nD 1 2 3 -4\nS 1 2 1.5 10\nPOST my file\n",
     "+2 +3 +4 +5 +6"},
    {"AnAngleAfterAtoms",
     "O 0 0 0\n",
     {angle},
     "O 0 0 0\n\nA 1 2 3\n",
     "+2 +3",
     "line 3 would be read as an atom of element A, not as an angle constraint; put another "
     "post-processing line before it to avoid that"},
    {"AnAngleAfterADroppedLine", "O 0 0 0\nC x\n", {angle}, "O 0 0 0\nC x\nA 1 2 3\n", "+3"},
    {"RawTextOfTwoLines",
     "C 1\n",
     {AddPostCommand{raw_line("x\ny")}, bond},
     "C 1\nx\ny\nB 1 2\n",
     "+2 +3 +4",
     "line 2 would be read differently: the text of post-processing line 2 is 'x' instead of "
     "'x\ny'"},
    {"RawTextWithALineBreakAfter",
     "C 1",
     {AddPostCommand{raw_line("x\n")}},
     "C 1\nx\n\n",
     "+2 +3",
     "line 2 would be read differently: the text of post-processing line 2 is 'x' instead of "
     "'x\n'"},
    {"RawTextWithALineBreakInFront",
     "C 1",
     {AddPostCommand{raw_line("\nx")}},
     "C 1\n\nx",
     "+2 +3",
     "line 3 would be read differently: the text of post-processing line 2 is 'x' instead of "
     "'\nx'"},
    {"EmptyRawText",
     "C 1",
     {AddPostCommand{raw_line("")}},
     "C 1\n\n",
     "+2",
     "no line would be read as raw text ('')"},
    {"RawTextOfBlanksDoesNotCountAsTextBeforeIt",
     "\n",
     {AddPostCommand{raw_line(" ")}, bond},
     " \nB 1 2\n\n",
     "+1 +2",
     "line 2 would be read differently: post-processing line 1 is a bond constraint instead of raw "
     "text"},
};

class SurgeryOnPostLines : public testing::TestWithParam<SurgicalCase> {};

TEST_P(SurgeryOnPostLines, AddsLines) { expect_surgery(GetParam()); }

const SurgicalCase removal_rows[] = {
    {"TheFirstOfThree",
     "O 0 0 0\n\nb 1 2 \nC 1\n  POST x  y\n",
     {RemovePostCommands{{true}}},
     "O 0 0 0\n\nC 1\n  POST x  y\n",
     "-3"},
    {"TheSecondOfThree",
     "O 0 0 0\n\nb 1 2 \nC 1\n  POST x  y\n",
     {RemovePostCommands{{false, true, false}}},
     "O 0 0 0\n\nb 1 2 \n  POST x  y\n",
     "-4"},
    {"AllOfThem",
     "O 0 0 0\n\nb 1 2\n\nC 1\n",
     {RemovePostCommands{{true, true}}},
     "O 0 0 0\n\n\n",
     "-3 -5"},
    {"NoneOfThem", "O 0 0 0\n\nb 1 2\n", {RemovePostCommands{{false}}}, "O 0 0 0\n\nb 1 2\n", ""},
    {"ALineThatWasDroppedStays",
     "O 0 0 0\n\nB 1 x\nB 1 2\n",
     {RemovePostCommands{{true}}},
     "O 0 0 0\n\nB 1 x\n",
     "-4"},
    {"AnotherLineIsAdded",
     "O 0 0 0\n\nC 1\nC 2\n",
     {RemovePostCommands{{true, false}}, bond},
     "O 0 0 0\n\nC 2\nB 1 2\n",
     "-3 +4"},
    {"TheOnlyOneIsReplaced",
     "O 0 0 0\n\nC 1\n",
     {RemovePostCommands{{true}}, bond},
     "O 0 0 0\n\nB 1 2\n",
     "-3 +3"},
    {"AnAngleThatFollowsTheAtomsIsRefused",
     "O 0 0 0\nC 1\nA 1 2 3\n",
     {RemovePostCommands{{true, false}}},
     "O 0 0 0\nA 1 2 3\n",
     "-2",
     "line 2 would be read as an atom of element A, not as an angle constraint; put another "
     "post-processing line before it to avoid that"},
};

class RemovalOfPostLines : public testing::TestWithParam<SurgicalCase> {};

TEST_P(RemovalOfPostLines, KeepsTheOthers) { expect_surgery(GetParam()); }

INSTANTIATE_TEST_SUITE_P(Table, RemovalOfPostLines, testing::ValuesIn(removal_rows), row_name);

INSTANTIATE_TEST_SUITE_P(Table, SurgeryOnPostLines, testing::ValuesIn(rows), row_name);

const SurgicalCase line_end_rows[] = {
    {"AChangedLineKeepsItsOwn",
     "#a\r\n#b\n#c\r\n",
     {SetAssignment{"a", "1"}, SetAssignment{"b", "2"}, SetAssignment{"c", "3"}},
     "#a = 1\r\n#b = 2\n#c = 3\r\n",
     "1 2 3"},
    {"AChangedLastLineGoesOnHavingNone",
     "#a\r\n#b",
     {SetAssignment{"b", "2"}},
     "#a\r\n#b = 2",
     "2"},
    {"ANewLineTakesThatOfTheLineInFront",
     "#a\r\nO 0 0 0\nC 1\n",
     {SetFlag{"b"}, bond},
     "#a\r\n#b\r\nO 0 0 0\nC 1\nB 1 2\n",
     "+2 +5"},
    {"ANewFirstLineTakesThatOfTheFirstLine",
     "O 0 0 0\r\nC 1\n",
     {SetFlag{"b"}},
     "#b\r\n\r\nO 0 0 0\r\nC 1\n",
     "+1 +2"},
    {"ALastLineWithoutOneGetsOneWhenAnotherFollows",
     "#a\r\n#b",
     {SetFlag{"c"}, SetFlag{"d"}},
     "#a\r\n#b\r\n#c\r\n#d",
     "+3 +4"},
    {"TheOnlyLineGetsTheUsualOneWhenAnotherFollows", "#a", {SetFlag{"b"}}, "#a\n#b", "+2"},
    {"TheLineBeforeARemovedLastOneLosesItsOwn",
     "#a\r\n#b\r\n#c",
     {RemoveCommand{"c"}},
     "#a\r\n#b",
     "-3"},
    {"AnEmptyLastLineKeepsItsOwn", "#a\n\n#b", {RemoveCommand{"b"}}, "#a\n\n", "-3"},
    {"ABlankLastLineLosesItsOwn", "#a\n \n#b", {RemoveCommand{"b"}}, "#a\n ", "-3"},
    {"ALastLineWithOneKeepsItWhenTheNextGoes", "#a\n#b\n", {RemoveCommand{"b"}}, "#a\n", "-2"},
    {"TheOnlyLineGoes", "#a", {RemoveCommand{"a"}}, "", "-1"},
    {"ALoneCarriageReturnAtTheEndStays", "#a\nC 1\r", {SetFlag{"b"}}, "#a\n#b\nC 1\r", "+2"},
    {"ALoneCarriageReturnBecomesPartOfTheLineEnd", "#a\r", {SetFlag{"b"}}, "#a\r\n#b", "+2"},
    {"CarriageReturnsBeforeALineEndStay",
     "#a\r\r\n#b\r\r\n",
     {SetAssignment{"a", "1"}, SetFlag{"c"}},
     "#a = 1\r\n#b\r\r\n#c\r\n",
     "1 +3"},
    {"ABlankLineOfCarriageReturnsIsBlank",
     "#a\n\r\r\nO 0 0 0\n",
     {SetChargeAndMultiplicity{0, 1}},
     "#a\n\r\r\n0 1\r\nO 0 0 0\n",
     "+3"},
};

class SurgeryOnLineEnds : public testing::TestWithParam<SurgicalCase> {};

TEST_P(SurgeryOnLineEnds, KeepsThem) { expect_surgery(GetParam()); }

INSTANTIATE_TEST_SUITE_P(Table, SurgeryOnLineEnds, testing::ValuesIn(line_end_rows), row_name);

}  // namespace

}  // namespace kelp::input::quill::lossless
