#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "lossless/editing/surgical_case.hpp"
#include "lossless/properties/edits.hpp"
#include "support/comparison.hpp"
#include "support/printing.hpp"

namespace kelp::input::quill::lossless {

namespace {

const SurgicalCase rows[] = {
    {"NoEdits", "  # opt \r\n\n", {}, "  # opt \r\n\n", ""},
    {"AnEditThatChangesNothing",
     "  # opt ( maxiter = '50' )\n",
     {SetParameter{"OPT", "MAXITER", "50"}},
     "  # opt ( maxiter = '50' )\n",
     ""},
    {"AParameterIsChangedAndTheRestOfTheTextStays",
     "  # Opt(maxiter=50 ,tight)  \n\n # model=m1\n\n 0  1\nO   0 0 1d-1\n\n\n b 1 2 \n  free\n",
     {SetParameter{"opt", "maxiter", "100"}},
     "#Opt(maxiter=100, tight)\n\n # model=m1\n\n 0  1\nO   0 0 1d-1\n\n\n b 1 2 \n  free\n",
     "1"},
    {"AParameterIsAdded", "#opt\n", {SetParameter{"opt", "a", "1"}}, "#opt(a=1)\n", "1"},
    {"TheParametersOfTheSecondOccurrence",
     "#opt(a=1)\n#OPT(a=1)\n",
     {SetParameter{"opt", "a", "2", 1}},
     "#opt(a=1)\n#OPT(a=2)\n",
     "2"},
    {"AMissingOccurrenceEditsTheFirst",
     "#opt(a=1)\n",
     {SetParameter{"opt", "a", "2", 1}},
     "#opt(a=1, a=2)\n",
     "1"},
    {"AParameterIsRemoved",
     "#opt(a=1, b, c)\n#sp\n",
     {RemoveParameter{"opt", "b"}},
     "#opt(a=1, c)\n#sp\n",
     "1"},
    {"TheLastParameterIsRemoved", "#opt( a )\n", {RemoveParameter{"opt", "a"}}, "#opt\n", "1"},
    {"AParameterThatIsNotThere", "#opt( a )\n", {RemoveParameter{"opt", "b"}}, "#opt( a )\n", ""},
    {"AParameterOfTheSecondOccurrenceIsRemoved",
     "#opt(a)\n#opt(a,b)\n",
     {RemoveParameter{"opt", "a", 1}},
     "#opt(a)\n#opt(b)\n",
     "2"},
    {"AnAssignmentIsChanged",
     "#Model='b3 lyp'\nO 0 0 0",
     {SetAssignment{"model", "m2"}},
     "#Model = m2\nO 0 0 0",
     "1"},
    {"AnAssignmentIsAddedAfterTheLastHeaderLine",
     "#opt\n\n  #sp\n\nO 0 0 0\n",
     {SetAssignment{"model", "m1"}},
     "#opt\n\n  #sp\n#model = m1\n\nO 0 0 0\n",
     "+4"},
    {"AFlagIsSet", "#opt(a)\n", {SetFlag{"opt"}}, "#opt\n", "1"},
    {"ATaskIsSet",
     "#opt(a=1)\n#sp\n",
     {SetTask{"opt", {{"b"}, {"c", "2"}}}},
     "#opt(b, c=2)\n#sp\n",
     "1"},
    {"ACommandIsAdded",
     "#opt\nO 0 0 0\n",
     {AddCommand{HeaderCommand("opt")}, AddCommand{HeaderCommand("opt")}},
     "#opt\n#opt\n#opt\nO 0 0 0\n",
     "+2 +3"},
    {"EveryCommandOfANameIsRemoved",
     "#opt\n\n#model=m1\n#OPT(a)\n\nO 0 0 0\n",
     {RemoveCommand{"opt"}},
     "\n#model=m1\n\nO 0 0 0\n",
     "-1 -4"},
    {"OfEqualCommandsTheRightOneLosesItsLine",
     "#opt\n# opt\n#  opt\n",
     {RemoveCommand{"opt", 1}},
     "#opt\n#  opt\n",
     "-2"},
    {"AnOccurrenceThatIsNotThere",
     "#opt\n",
     {RemoveCommand{"opt", 1}, RemoveCommand{"sp"}},
     "#opt\n",
     ""},
    {"ARemovedCommandIsSetAgainInAnotherLine",
     "#opt(a)\n#sp\n",
     {RemoveCommand{"opt"}, SetFlag{"opt"}},
     "#sp\n#opt\n",
     "-1 +2"},
    {"ATaskAtTheEndOfTheHeaderIsReplacedInItsLine",
     "#model = m1\n # opt\n\nO 0 0 0\n",
     {RemoveCommand{"opt"}, SetFlag{"freq"}, SetFlag{"sp"}},
     "#model = m1\n#freq\n#sp\n\nO 0 0 0\n",
     "2 +3"},
    {"FewerCommandsInTheLinesOfSeveral",
     "#opt\n# sp\n",
     {RemoveCommand{"opt"}, RemoveCommand{"sp"}, SetFlag{"freq"}},
     "#freq\n",
     "1 -2"},
    {"ACommandThatIsRemovedAndAddedAgainKeepsItsLine",
     "#opt\n # SP\n",
     {RemoveCommand{"sp"}, SetFlag{"SP"}},
     "#opt\n # SP\n",
     ""},
    {"SeveralEditsOfOneLine",
     "#opt\n",
     {SetParameter{"opt", "a", "1"}, SetParameter{"opt", "b", "2"}, RemoveParameter{"opt", "a"}},
     "#opt(b=2)\n",
     "1"},
    {"TheWholeHeaderIsRemoved",
     "\n#opt\n\n#sp\n\nO 0 0 0\n",
     {RemoveCommand{"opt"}, RemoveCommand{"sp"}},
     "\n\n\nO 0 0 0\n",
     "-2 -4"},
    {"AnEmptyText",
     "",
     {SetFlag{"opt"}, SetAssignment{"model", "m1"}},
     "#opt\n#model = m1\n",
     "+1 +2"},
    {"BlankLinesOnly", "\n  \n", {SetFlag{"opt"}}, "#opt\n\n  \n", "+1"},
    {"ABlankLineWithoutAnEnd", "  ", {SetFlag{"opt"}}, "#opt\n  ", "+1"},
    {"ANewHeaderComesBeforeTheGeometry",
     "O 0 0 0\n",
     {SetFlag{"opt"}, SetFlag{"sp"}},
     "#opt\n#sp\n\nO 0 0 0\n",
     "+1 +2 +3"},
    {"ANewHeaderUsesTheBlankLineThatIsThere", "\nC 1\n", {SetFlag{"opt"}}, "#opt\n\nC 1\n", "+1"},
    {"QuotesThatAreNeededStay",
     "#opt(a='1,2', b=\" c \", d='e')\n",
     {SetParameter{"opt", "d", "f"}},
     "#opt(a=\"1,2\", b=\" c \", d=f)\n",
     "1"},
    {"AValueWithACommaIsQuoted",
     "#opt\n",
     {SetParameter{"opt", "a", "1,2"}, SetAssignment{"model", " m "}},
     "#opt(a=\"1,2\")\n#model = \" m \"\n",
     "1 +2"},
    {"AMissingParenthesisIsClosed",
     "#opt(a=1\n",
     {SetParameter{"opt", "a", "2"}},
     "#opt(a=2)\n",
     "1"},
    {"ALineWithAWarningThatIsNotChangedStays",
     "#opt(a=1\n#\n# = 5\n#sp() junk\n",
     {SetFlag{"freq"}},
     "#opt(a=1\n#\n# = 5\n#sp() junk\n#freq\n",
     "+5"},
    {"ANamelessCommandIsFoundByItsName", "# = 5\n", {SetAssignment{"", "6"}}, "# = 6\n", "1"},
    {"ACommandOfTheFormOfALaterSection",
     "#opt\n#opt\nO 0 0 0\n#opt\n",
     {SetParameter{"opt", "a", "1", 1}},
     "#opt\n#opt(a=1)\nO 0 0 0\n#opt\n",
     "2"},
    {"NulBytesStay",
     std::string("#a\0b\n#opt\n\0\n", 13),
     {SetFlag{"sp"}},
     std::string("#a\0b\n#opt\n#sp\n\0\n", 17),
     "+3"},
    {"AnUnspellableValue",
     "#opt(a=1)\n\nO 0 0 0\n",
     {SetParameter{"opt", "a", "x\ny"}},
     "#opt(a=x\ny)\n\nO 0 0 0\n",
     "1 +2",
     "the value 'x\ny' of parameter 'a' contains a line break, but a header command is one line"},
    {"AnOldValueThatCannotHaveAParameterAfterIt",
     "#opt(a=it's \"x)\n",
     {SetParameter{"opt", "b", "1"}},
     "#opt(a=it's \"x, b=1)\n",
     "1",
     "the value 'it's \"x' of parameter 'a' cannot be written: without quotes, in double quotes "
     "and in "
     "single "
     "quotes it would be read differently with another parameter after it"},
    {"ANameThatIsNotAName",
     "#opt\n",
     {SetFlag{"a(b)"}},
     "#opt\n#a(b)\n",
     "+2",
     "the command name 'a(b)' would be read differently"},
    {"ALineAfterTheHeaderThatWouldBecomeACommand",
     "#opt\nO 0 0 0\n#sp\n",
     {SetXyzFiles{}},
     "#opt\n#sp\n",
     "-2",
     "line 2 would be read as a header command, not as raw text; put another post-processing line "
     "before it to avoid that"},
};

class SurgeryOnTheHeader : public testing::TestWithParam<SurgicalCase> {};

TEST_P(SurgeryOnTheHeader, ChangesTheLinesItMust) { expect_surgery(GetParam()); }

INSTANTIATE_TEST_SUITE_P(Table, SurgeryOnTheHeader, testing::ValuesIn(rows), row_name);

}  // namespace

TEST(SurgeryOnTheHeader, GivesEveryProblemOfQuoting) {
  const EditOutcome edit =
      edit_text("#sp\n", {SetParameter{"opt", "a", "\n"}, SetParameter{"sp", "b=", "1"}});
  EXPECT_THAT(edit.problems(),
              testing::ElementsAre("the parameter name 'b=' would be read differently",
                                   "the value '\n' of parameter 'a' contains a line break, but a "
                                   "header command is one line"));
  EXPECT_EQ(edit.refusal(), "the parameter name 'b=' would be read differently");
}

TEST(SurgeryOnTheHeader, GivesTheDocumentOfTheEdits) {
  const EditOutcome edit = edit_text("#opt(a='x', b)\n0 1\n", {SetParameter{"opt", "a", "1,2"}});
  QuillInput wanted({HeaderCommand("opt", HeaderCommandKind::ParameterList, std::nullopt,
                                   {{"a", "1,2"}, {"b"}})});
  wanted.geometry.has_charge_and_multiplicity = true;
  EXPECT_EQ(edit.wanted, wanted);
  EXPECT_EQ(edit.proof.found.input, wanted);
}

}  // namespace kelp::input::quill::lossless
