#include <gtest/gtest.h>

#include "tools/lint/marked_rows.hpp"

namespace kelp::input::quill::lint {

namespace {

const MarkedRow rows[] = {
    {"AnInputWithoutAFault",
     "#opt(maxiter=50, tight, basis='large, diffuse')\n"
     "#model = small-organic\n"
     "#device = cpu\n"
     "0 1\n"
     "He 0 0 0\n"},
    {"AListThatIsNotClosed",
     "#opt (maxiter=50\n"
     "     ^ QL201 missing ')' in QUILL header command: all that follows is read as parameters\n"
     "0 1\n"
     "He 0 0 0\n"},
    {"TextAfterAList",
     "#opt(tight)  and more  \n"
     "             ^^^^^^^^ QL202 ignored trailing text after QUILL header command: 'and more' is "
     "lost\n"
     "0 1\n"
     "He 0 0 0\n"},
    {"AnEmptyCommand",
     "#opt\n"
     " # \n"
     " ^ QL203 empty QUILL header command\n"
     "0 1\n"
     "He 0 0 0\n"},
    {"CommandsWithoutAName",
     "#opt\n"
     "#=5\n"
     "^^^ QL204 QUILL header command has no name\n"
     " # (a)\n"
     " ^^^^^ QL204 QUILL header command has no name\n"
     "0 1\n"
     "He 0 0 0\n"},
    {"TwoTasksInOneLine",
     "#opt freq\n"
     " ^^^^^^^^ QL205 this is one command named 'opt freq', not the command 'opt'\n"
     "0 1\n"
     "He 0 0 0\n"},
    {"AParameterWithoutParentheses",
     "#OPT maxiter=50\n"
     " ^^^^^^^^^^^ QL205 this is one command named 'OPT maxiter', not the command 'OPT'\n"
     "0 1\n"
     "He 0 0 0\n"},
    {"SeveralWordsBeforeAList",
     "#opt tight(maxiter=50)\n"
     " ^^^^^^^^^ QL205 this is one command named 'opt tight', not the command 'opt'\n"
     "0 1\n"
     "He 0 0 0\n"},
    {"AComment",
     "#opt\n"
     "# a helium atom\n"
     "  ^^^^^^^^^^^^^ QL206 this is a command named 'a helium atom': an input has no comments\n"
     "0 1\n"
     "He 0 0 0\n"},
    {"SimilarNames",
     "#opt\n"
     "#modle = m1\n"
     " ^^^^^ QL207 the command 'modle' is not known; did you mean 'model'?\n"
     "#Freqs\n"
     " ^^^^^ QL207 the command 'Freqs' is not known; did you mean 'freq'?\n"
     "#divice=cpu\n"
     " ^^^^^^ QL207 the command 'divice' is not known; did you mean 'device'?\n"
     "#foo\n"
     "0 1\n"
     "He 0 0 0\n"},
    {"ATaskWithATypingMistakeIsATask",
     "#otp\n"
     " ^^^ QL207 the command 'otp' is not known; did you mean 'opt'?\n"
     "0 1\n"
     "He 0 0 0\n"},
    {"SeveralTasks",
     "#opt\n"
     "#freq\n"
     "^^^^^ QL208 the input has 3 tasks\n"
     "#opt\n"
     "0 1\n"
     "He 0 0 0\n"},
    {"NoTask",
     "#model = m1\n"
     "< QL209 no command says what to compute\n"
     "0 1\n"
     "He 0 0 0\n"},
    {"NoTaskWithoutAHeader",
     "0 1\n"
     "< QL209 no command says what to compute\n"
     "He 0 0 0\n"},
    {"DuplicateAssignments",
     "#opt\n"
     "#model = a\n"
     "#Model= b\n"
     "^^^^^^^^^ QL210 'Model' was assigned before, and only the first value counts\n"
     "#model(c)\n"
     "#model =a\n"
     "^^^^^^^^^ QL210 'model' was assigned before, and only the first value counts\n"
     "0 1\n"
     "He 0 0 0\n"},
    {"DuplicateParameters",
     "#opt(maxiter=50, tight, MAXITER, Tight=1)\n"
     "                        ^^^^^^^ QL211 the parameter 'MAXITER' was given before, and only the "
     "first one is found\n"
     "                                 ^^^^^ QL211 the parameter 'Tight' was given before, and "
     "only the first one is found\n"
     "0 1\n"
     "He 0 0 0\n"},
    {"EmptyEntries",
     "#opt(, a,,b, )\n"
     "     < QL212 an entry of the list is empty\n"
     "         < QL212 an entry of the list is empty\n"
     "            < QL212 an entry of the list is empty\n"
     "0 1\n"
     "He 0 0 0\n"},
    {"AListWithNothingInItIsFine",
     "#opt( )\n"
     "0 1\n"
     "He 0 0 0\n"},
    {"EntriesWithoutAName",
     "#opt(=5, = , a)\n"
     "      ^ QL213 the value '5' has no name and is lost\n"
     "          < QL213 the value '' has no name and is lost\n"
     "0 1\n"
     "He 0 0 0\n"},
    {"AQuoteThatIsNotClosed",
     "#opt(x='1,2)\n"
     "       ^ QL214 no quote closes this one: ''1,2' is read as one piece\n"
     "0 1\n"
     "He 0 0 0\n"},
    {"AQuoteThatIsNotClosedAfterOneThatIs",
     "#opt(a='1', b=\"2, c)\n"
     "              ^ QL214 no quote closes this one: '\"2, c' is read as one piece\n"
     "0 1\n"
     "He 0 0 0\n"},
    {"AQuoteOfTheOtherKindIsText",
     "#opt(a=\"it's\", b)\n"
     "0 1\n"
     "He 0 0 0\n"},
    {"AnAssignmentWithOneQuote",
     "#opt\n"
     "#device = \"cpu'\n"
     "          ^ QL214 no quote closes this one: '\"cpu'' is read as one piece\n"
     "#model = 'm1\n"
     "         ^ QL214 no quote closes this one: ''m1' is read as one piece\n"
     "0 1\n"
     "He 0 0 0\n"},
    {"AnAssignmentWithAnApostrophe",
     "#opt\n"
     "#title = Kelp's input\n"
     "0 1\n"
     "He 0 0 0\n"},
    {"ValuesThatAreCut",
     "#opt(b=c, d=(e,f))\n"
     "            ^^ QL215 the value of 'd' ends at the comma: '(e'\n"
     "0 1\n"
     "He 0 0 0\n"},
    {"ParenthesesWithoutACommaAreFine",
     "#opt(a=(1), b=f(x), c='(1,2', d)\n"
     "0 1\n"
     "He 0 0 0\n"},
    {"TypographicQuotes",
     "#opt(basis=“large, diffuse”, x=‘1’)\n"
     "           ^^^ QL216 the quotes are part of the value “large, diffuse”\n"
     "                                   ^^^ QL216 the quotes are part of the value ‘1’\n"
     "#model = „m1“\n"
     "         ^^^ QL216 the quotes are part of the value „m1“\n"
     "0 1\n"
     "He 0 0 0\n"},
    {"ATypographicApostropheIsFine",
     "#opt\n"
     "#title = Kelp’s input\n"
     "0 1\n"
     "He 0 0 0\n"},
    {"ATypographicQuoteAroundAQuoteHasNoMend",
     "#opt\n"
     "#title = “a\"b”\n"
     "         ^^^ QL216 the quotes are part of the value “a\"b”\n"
     "0 1\n"
     "He 0 0 0\n"},
    {"ANumberWithAUnicodeMinus",
     "#opt(a=−1, b=1−2, c=a−b)\n"
     "       ^^^^ QL217 the value '−1' looks like a number, and has characters that no number has\n"
     "#shift = −0.5\n"
     "         ^^^^^^ QL217 the value '−0.5' looks like a number, and has characters that no "
     "number has\n"
     "0 1\n"
     "He 0 0 0\n"},
};

class HeaderRules : public MarkedRows {};

TEST_P(HeaderRules, FindExactlyThis) { expect_marks(); }

INSTANTIATE_TEST_SUITE_P(Table, HeaderRules, testing::ValuesIn(rows), name_of_row);

}  // namespace

}  // namespace kelp::input::quill::lint
