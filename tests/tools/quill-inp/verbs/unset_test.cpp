#include <gtest/gtest.h>

#include <string>

#include "tools/quill-inp/support/call.hpp"

namespace kelp::input::quill::tool {
namespace {

const std::string atoms =
    "O        0.000000      0.000000      0.117176\n"
    "H        0.000000      0.756950     -0.468706\n"
    "H        0.000000     -0.756950     -0.468706\n";

const std::string hint = "quill-inp: note: see 'quill-inp unset --help'\n";

const std::string four = "#a(p=1, q)\n#b\n#A(p=2)\n#a = 3\n0 1\n";

std::string twice(const std::string& text) { return text + text; }

class Unset : public testing::TestWithParam<Call> {};

const Call calls[] = {
    {"TheSameOfSeveralFiles",
     {"unset", "-k", "model", "water.qin", "water.qin", "-k", "opt.tight"},
     ended(0,
           twice("#opt(maxiter=50)\n\n0 1\nO        0.000000      0.000000      0.117176\n"
                 "H        0.000000      0.756950     -0.468706\n"
                 "H        0.000000     -0.756950     -0.468706\n"),
           "")},
    {"Parameter",
     {"unset", "water.qin", "opt.maxiter"},
     ended(0, "#opt(tight)\n#model = m1\n\n0 1\n" + atoms, "")},
    {"LastParameterMakesAFlag",
     {"unset", "water.qin", "opt.maxiter", "opt.tight"},
     ended(0, "#opt\n#model = m1\n\n0 1\n" + atoms, "")},
    {"Command",
     {"unset", "water.qin", "model"},
     ended(0, "#opt(maxiter=50, tight)\n\n0 1\n" + atoms, "")},
    {"ChargeAndMultiplicityByOne",
     {"unset", "water.qin", "@charge"},
     ended(0, "#opt(maxiter=50, tight)\n#model = m1\n\n" + atoms, "")},
    {"ChargeAndMultiplicityByTheOther",
     {"unset", "water.qin", "@multiplicity"},
     ended(0, "#opt(maxiter=50, tight)\n#model = m1\n\n" + atoms, "")},
    {"ChargeAndMultiplicityByBoth",
     {"unset", "water.qin", "@multiplicity", "@charge"},
     ended(0, "#opt(maxiter=50, tight)\n#model = m1\n\n" + atoms, "")},
    {"AllOfAName", {"unset", "-", "a"}, ended(0, "#b\n0 1\n", ""), four},
    {"TheFirst", {"unset", "-", "a[0]"}, ended(0, "#b\n#A(p=2)\n#a = 3\n0 1\n", ""), four},
    {"TheSecond", {"unset", "-", "a[1]"}, ended(0, "#a(p=1, q)\n#b\n#a = 3\n0 1\n", ""), four},
    {"NumbersAreThoseOfTheFile",
     {"unset", "-", "a[0]", "a[1]"},
     ended(0, "#b\n#a = 3\n0 1\n", ""),
     four},
    {"NumbersInAnyOrder", {"unset", "-", "a[2]", "a[0]"}, ended(0, "#b\n#A(p=2)\n0 1\n", ""), four},
    {"ParameterOfTheFirst",
     {"unset", "-", "a.p"},
     ended(0, "#a(q)\n#b\n#A(p=2)\n#a = 3\n0 1\n", ""),
     four},
    {"ParameterAfterACommandBeforeIt",
     {"unset", "-", "a[0]", "a[1].p"},
     ended(0, "#b\n#A\n#a = 3\n0 1\n", ""),
     four},
    {"TheSameTwiceIsOnce",
     {"unset", "-", "a.p", "A[0].P", "a[0].p"},
     ended(0, "#a(q)\n#b\n#A(p=2)\n#a = 3\n0 1\n", ""),
     four},
    {"TheFirstOfTwoParametersOfAName",
     {"unset", "-", "a.p"},
     ended(0, "#b\n#a(P=2)\n0 1\n", "<stdin>:2: note: another parameter 'P' is still there\n"),
     "#b\n#a(p=1, P=2)\n0 1\n"},
    {"BothParametersOfAName",
     {"unset", "-", "a.p", "a.P"},
     ended(0, "#a\n0 1\n", ""),
     "#a(p=1, p=2)\n0 1\n"},
    {"TwoOfThreeParametersOfAName",
     {"unset", "-", "a.p", "a.q", "a.p", "A.q"},
     ended(0, "\n#a(p=3)\n0 1\n", "<stdin>:2: note: another parameter 'p' is still there\n"),
     "\n#a(p=1, p=2, q, p=3)\n0 1\n"},
    {"AParameterOfANameInEachOfTwoCommands",
     {"unset", "-", "a.p", "a[1].p", "b"},
     ended(0, "#a(p=2)\n#a\n0 1\n", "<stdin>:1: note: another parameter 'p' is still there\n"),
     "#a(p=1, p=2)\n#b\n#a(p=3)\n0 1\n"},
    {"AParameterOfACommandThatGoes",
     {"unset", "-", "a.p", "a[0]"},
     ended(0, "#a(p=3)\n0 1\n", ""),
     "#a(p=1, p=2)\n#a(p=3)\n0 1\n"},
    {"NoNoteOnWhatIsNotRemoved",
     {"unset", "-", "a.p", "b"},
     ended(1, "", "<stdin>: note: no match for 'b': no command 'b'\n"),
     "#a(p=1, p=2)\n0 1\n"},
    {"TextAfterACommandThatIsRemoved",
     {"unset", "-q", "-", "a"},
     ended(2, "",
           "<stdin>:1: error: refused: line 1 says more than its command, and the rest would be "
           "lost: "
           "'#a(p=1) # remark'; use --allow-loss to write it anyway\n"),
     "#a(p=1) # remark\n0 1\n"},
    {"TextAfterACommandThatMayBeRemoved",
     {"unset", "--allow-loss", "-", "a"},
     ended(0, "0 1\n",
           "<stdin>:1: warning: ignored trailing text after QUILL header command\n"
           "<stdin>:1: warning: accepted loss: line 1 says more than its command, and the rest "
           "would be lost: "
           "'#a(p=1) # remark'\n"),
     "#a(p=1) # remark\n0 1\n"},
    {"ACommandWithoutItsClosingParenthesis",
     {"unset", "-q", "-", "a"},
     ended(0, "0 1\n", ""),
     "# a ( p = 'x, y' , q\n0 1\n"},
    {"NamelessCommand", {"unset", "-q", "-", "#"}, ended(0, "#b\n0 1\n", ""), "#\n#b\n0 1\n"},
    {"CommandAndItsParameter", {"unset", "-", "a", "a.p"}, ended(0, "#b\n0 1\n", ""), four},
    {"OtherBytesStay",
     {"unset", "by_hand.qin", "model"},
     ended(0,
           "# Opt ( maxiter = 50 , tight )\r\n  0   1\r\n\r\no 0 0 0.117176\r\n"
           "h 0  0.75695 -0.468706\r\nh 0 -0.75695 -0.468706",
           "")},
    {"PostProcessingLinesOfAKind",
     {"unset", "-", "@bonds", "@raw"},
     ended(0, "XYZ a\n\n\nC 1\n\n A  1 2 3\n", ""),
     "XYZ a\n\nB 1 2\n\nC 1\nb 3 4\nmore\n\n A  1 2 3\n"},
    {"OnePostProcessingLine",
     {"unset", "-", "@bond[1]", "@scan[0]", "@bond[1]"},
     ended(0, "XYZ a\nB 1 2\nB 5 6\nB 1 x\n",
           "<stdin>:6: warning: ignored unrecognized QUILL post-processing line\n"),
     "XYZ a\nB 1 2\nB 3 4\nB 5 6\nS 1 2 3.5 4\nB 1 x\n"},
    {"AllLinesAndOneOfThem",
     {"unset", "-", "@bond[0]", "@bonds"},
     ended(0, "XYZ a\n", ""),
     "XYZ a\nB 1 2\nB 3 4\n"},
    {"ALineAfterWhichAnotherWouldBeAnAtom",
     {"unset", "-", "@bond[0]"},
     ended(
         2, "",
         "<stdin>:3: error: refused: line 3 would be read as an atom of element A, not as an angle "
         "constraint; put another post-processing line before it to avoid that; use --allow-loss "
         "to write it anyway\n"),
     "0 1\nHe 0 0 0\nB 1 2\nA 1 2 3\n"},
    {"NoSuchLine",
     {"unset", "-", "@bond[0]", "@bond[1]", "@scans"},
     ended(
         1, "",
         "<stdin>: note: no match for '@bond[1]': there is only 1 bond constraint, and [N] counts "
         "from 0\n<stdin>: note: no match for '@scans'\n"),
     "XYZ a\nB 1 2\n"},
    {"AnyCommandByItsNumber",
     {"unset", "-q", "-", "@commands[0]", "@commands[3].x", "a[0]", "@commands[1]"},
     ended(0, "#\n#b(y)\n0 1\n", ""),
     "#\n#a\n#\n#b(x=1, y)\n0 1\n"},
    {"NoMatch",
     {"unset", "water.qin", "opt.tigt"},
     ended(1, "",
           "water.qin: note: no match for 'opt.tigt': the command has no parameter 'tigt'; "
           "did you mean 'tight'?\n")},
    {"OneOfTwoWithoutMatchRemovesNothing",
     {"unset", "water.qin", "model", "freq"},
     ended(1, "", "water.qin: note: no match for 'freq': no command 'freq'\n")},
    {"NoChargeLine",
     {"unset", "-", "@charge"},
     ended(1, "", "<stdin>: note: no match for '@charge'\n"),
     "XYZ a\n"},
    {"ARawLineMustNotBecomeAnotherThing",
     {"unset", "-", "@charge"},
     ended(2, "",
           "<stdin>:1: error: refused: line 1 would be read as charge and multiplicity, not as raw "
           "text; put another post-processing line before it to avoid that; use --allow-loss to "
           "write it "
           "anyway\n"),
     "0 1\n1 2\n"},
    {"Geometry",
     {"unset", "water.qin", "@atoms"},
     ended(2, "",
           "quill-inp: error: '@atoms' cannot be unset; 'set' has --atoms, --xyz and "
           "--trajectory\n" +
               hint)},
    {"NoKey", {"unset", "water.qin"}, ended(2, "", "quill-inp: error: KEY is required\n" + hint)},
    {"Difference",
     {"unset", "--diff", "-", "b"},
     ended(1, "--- <stdin>\n+++ <stdin>\n@@ -1,3 +1,2 @@\n #a\n-#b\n 0 1\n", ""),
     "#a\n#b\n0 1\n"},
};

TEST_P(Unset, RemovesWhatItIsTold) { expect_outcome(GetParam()); }

INSTANTIATE_TEST_SUITE_P(Table, Unset, testing::ValuesIn(calls),
                         [](const auto& row) { return std::string(row.param.name); });

}  // namespace
}  // namespace kelp::input::quill::tool
