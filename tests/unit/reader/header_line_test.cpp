#include "reader/header_line.hpp"

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

#include "support/comparison.hpp"
#include "support/printing.hpp"

namespace kelp::input::quill {
namespace {

using namespace std::string_literals;

using Parameters = std::vector<CommandParameter>;

HeaderCommand flag(std::string name) { return HeaderCommand(std::move(name)); }

HeaderCommand assignment(std::string name, std::string value) {
  return HeaderCommand(std::move(name), HeaderCommandKind::Assignment, std::move(value));
}

HeaderCommand list(std::string name, Parameters parameters) {
  return HeaderCommand(std::move(name), HeaderCommandKind::ParameterList, std::nullopt,
                       std::move(parameters));
}

struct LineRow {
  std::string name;
  std::string line;
  HeaderCommand command;
  std::vector<std::string> warnings = {};
};

void PrintTo(const LineRow& row, std::ostream* out) { *out << testing::PrintToString(row.line); }

const std::string empty = "Line 7: empty QUILL header command";
const std::string unclosed = "Line 7: missing ')' in QUILL header command";
const std::string trailing = "Line 7: ignored trailing text after QUILL header command";
const std::string nameless = "Line 7: QUILL header command has no name";

class HeaderLine : public testing::TestWithParam<LineRow> {};

TEST_P(HeaderLine, IsReadAs) {
  std::vector<std::string> warnings;
  EXPECT_EQ(parse_header_command_line(GetParam().line, warnings, 7), GetParam().command);
  EXPECT_EQ(warnings, GetParam().warnings);
}

const LineRow empty_lines[] = {
    {"AHashAlone", "#", {}, {empty}},
    {"AHashAndBlanks", "#   ", {}, {empty}},
    {"AHashBetweenAllKindsOfBlanks", " \t\v\f# \t\v\f\r", {}, {empty}},
    {"NoHashAtAll", "  ", {}, {empty}},
    {"Nothing", "", {}, {empty}},
};
INSTANTIATE_TEST_SUITE_P(Empty, HeaderLine, testing::ValuesIn(empty_lines),
                         [](const auto& row) { return row.param.name; });

const LineRow flags[] = {
    {"AWord", "#opt", flag("opt")},
    {"BlanksAroundTheLine", "  #opt\t", flag("opt")},
    {"BlanksAfterTheHash", "# \topt", flag("opt")},
    {"ACarriageReturnAtTheEnd", "#opt\r", flag("opt")},
    {"OneLetter", "#o", flag("o")},
    {"LetterCaseIsKept", "#OPT", flag("OPT")},
    {"InnerBlanksBelongToTheName", "# freq  opt", flag("freq  opt")},
    {"OnlyOneHashIsRemoved", "##freq", flag("#freq")},
    {"OnlyOneHashIsRemovedBeforeABlank", "## freq", flag("# freq")},
    {"ASecondHashBehindABlankIsKept", "# #freq", flag("#freq")},
    {"TwoHashesAreNotEmpty", "##", flag("#")},
    {"AHashAtTheEndIsKept", "#opt#", flag("opt#")},
    {"ALineWithoutAHash", "opt", flag("opt")},
    {"AClosingParenthesisAlone", "#opt)", flag("opt)")},
    {"ACommaDoesNotSeparate", "#opt,freq", flag("opt,freq")},
    {"QuotesAreKept", "#'opt'", flag("'opt'")},
    {"BytesOutsideAscii", "#\xC3\xA9\xFF", flag("\xC3\xA9\xFF")},
    {"ANulByte", "#o\0t"s, flag("o\0t"s)},
    {"ANulByteIsNoBlank", "#\0"s, flag("\0"s)},
};
INSTANTIATE_TEST_SUITE_P(Flag, HeaderLine, testing::ValuesIn(flags),
                         [](const auto& row) { return row.param.name; });

const LineRow assignments[] = {
    {"WithoutBlanks", "#model=m1", assignment("model", "m1")},
    {"WithBlanks", " # model\t=  m1 \r", assignment("model", "m1")},
    {"ApostrophesAreRemoved", "# model = 'b3 lyp'", assignment("model", "b3 lyp")},
    {"DoubleQuotesAreRemoved", "# model = \"b3 lyp\"", assignment("model", "b3 lyp")},
    {"BlanksBetweenQuotesAreKept", "#model=' m1 '", assignment("model", " m1 ")},
    {"BlanksWithoutQuotesAreKeptInside", "#model = b3  lyp", assignment("model", "b3  lyp")},
    {"ABlankInTheName", "#my model = m1", assignment("my model", "m1")},
    {"LetterCaseIsKept", "#MODEL = M1", assignment("MODEL", "M1")},
    {"NoValue", "#model=", assignment("model", "")},
    {"ABlankValue", "#model =   ", assignment("model", "")},
    {"AnEmptyValueInQuotes", "#model=''", assignment("model", "")},
    {"AnUnclosedQuoteIsKept", "#model='m1", assignment("model", "'m1")},
    {"QuotesOfTwoKindsAreKept", "#model='m1\"", assignment("model", "'m1\"")},
    {"TextAfterTheQuotesKeepsThem", "#model='m1' x", assignment("model", "'m1' x")},
    {"TheFirstEqualsSignSeparates", "#a=b=c", assignment("a", "b=c")},
    {"TwoEqualsSigns", "#a==b", assignment("a", "=b")},
    {"AnEqualsSignBeforeTheParenthesis", "#a=b(c)", assignment("a", "b(c)")},
    {"BlanksBeforeTheParenthesis", "# x = f(1)", assignment("x", "f(1)")},
    {"AParenthesisRightBehindTheEqualsSign", "#a=(b)", assignment("a", "(b)")},
    {"AnUnclosedParenthesisIsNoMatter", "#a=b(c", assignment("a", "b(c")},
    {"TextAfterTheParenthesisIsNoMatter", "#a=b(c) d", assignment("a", "b(c) d")},
    {"AClosingParenthesis", "#a=b)", assignment("a", "b)")},
    {"AClosingParenthesisInTheName", "#a)=b", assignment("a)", "b")},
    {"ACommaInTheValue", "#a=b,c", assignment("a", "b,c")},
    {"AHashInTheValue", "#a=#b", assignment("a", "#b")},
    {"AHashInTheName", "##a=b", assignment("#a", "b")},
    {"QuotesDoNotHideAnEqualsSign", "#'a=b'", assignment("'a", "b'")},
    {"BytesOutsideAscii", "#\xE9=\x80\xFF", assignment("\xE9", "\x80\xFF")},
    {"NulBytes", "#a\0=\0b"s, assignment("a\0"s, "\0b"s)},
    {"NoName", "# = 5", assignment("", "5"), {nameless}},
    {"NeitherNameNorValue", "#=", assignment("", ""), {nameless}},
};
INSTANTIATE_TEST_SUITE_P(Assignment, HeaderLine, testing::ValuesIn(assignments),
                         [](const auto& row) { return row.param.name; });

const LineRow lists[] = {
    {"KeyedAndBare", "#opt(maxiter=100, tight)", list("opt", {{"maxiter", "100"}, {"tight"}})},
    {"BlanksEverywhere", " # opt ( maxiter = 50 ) \r", list("opt", {{"maxiter", "50"}})},
    {"Empty", "#opt()", list("opt", {})},
    {"Blank", "#opt(  )", list("opt", {})},
    {"ABlankInTheName", "#my opt(a)", list("my opt", {{"a"}})},
    {"TheNameKeepsItsCase", "#OPT(A)", list("OPT", {{"A"}})},
    {"AnEqualsSignBehindTheParenthesis", "#a(b=c)", list("a", {{"b", "c"}})},
    {"AnEqualsSignRightBehindTheParenthesis", "#a(=c)", list("a", {})},
    {"ACommaBetweenApostrophes", "#opt(x='1,2', y=3)", list("opt", {{"x", "1,2"}, {"y", "3"}})},
    {"ACommaBetweenDoubleQuotes", "#opt(x=\"1,2\", y=3)", list("opt", {{"x", "1,2"}, {"y", "3"}})},
    {"TheLastParenthesisCloses", "#opt(x=1)(y)", list("opt", {{"x", "1)(y"}})},
    {"InnerParenthesesStayInTheList", "#opt(a=(1))", list("opt", {{"a", "(1)"}})},
    {"AParenthesisInTheNameDoesNotClose", "#opt)x(y)", list("opt)x", {{"y"}})},
    {"ASecondClosingParenthesis", "#opt(a))", list("opt", {{"a)"}})},
    {"BlanksAfterTheList", "#opt(a) \t\v\f\r", list("opt", {{"a"}})},
    {"TextAfterTheList", "#opt(x=1) junk", list("opt", {{"x", "1"}}), {trailing}},
    {"TextRightAfterTheList", "#opt(x=1)j", list("opt", {{"x", "1"}}), {trailing}},
    {"TextAfterInnerParentheses", "# opt(a=(1)) x", list("opt", {{"a", "(1)"}}), {trailing}},
    {"AnEqualsSignAfterTheList", "#a(b)=c", list("a", {{"b"}}), {trailing}},
    {"ANulByteAfterTheList", "#a(b)\0"s, list("a", {{"b"}}), {trailing}},
    {"QuotesDoNotHideAParenthesis", "#a(x=')'", list("a", {{"x", "'"}}), {trailing}},
    {"NoClosingParenthesis", "#opt(x=1", list("opt", {{"x", "1"}}), {unclosed}},
    {"NothingBehindTheParenthesis", "#opt(", list("opt", {}), {unclosed}},
    {"AnUnclosedListTakesTheWholeRest",
     "#opt(x=1, y (z",
     list("opt", {{"x", "1"}, {"y (z"}}),
     {unclosed}},
    {"AClosingParenthesisBeforeTheOpeningOne", "#opt)x(y", list("opt)x", {{"y"}}), {unclosed}},
    {"AClosingParenthesisRightBeforeTheOpeningOne", "#)(y", list(")", {{"y"}}), {unclosed}},
    {"BytesOutsideAscii", "#\xC3\xA9(\xFF=\x80)", list("\xC3\xA9", {{"\xFF", "\x80"}})},
    {"NulBytes", "#\0(\0=\0)"s, list("\0"s, {{"\0"s, "\0"s}})},
    {"NoName", "# (a=1)", list("", {{"a", "1"}}), {nameless}},
    {"NeitherNameNorParameters", "#()", list("", {}), {nameless}},
    {"NeitherNameNorEnd", "#(x=1", list("", {{"x", "1"}}), {unclosed, nameless}},
    {"NoNameAndTextAfterTheList", "#(x=1) y", list("", {{"x", "1"}}), {trailing, nameless}},
};
INSTANTIATE_TEST_SUITE_P(ParameterList, HeaderLine, testing::ValuesIn(lists),
                         [](const auto& row) { return row.param.name; });

TEST(HeaderLineWarnings, AreAppendedToThoseThatAreThere) {
  std::vector<std::string> warnings = {"an earlier one"};
  parse_header_command_line("#", warnings, 1);
  parse_header_command_line("#opt", warnings, 2);
  parse_header_command_line("#(", warnings, 3);
  EXPECT_EQ(warnings,
            (std::vector<std::string>{"an earlier one", "Line 1: empty QUILL header command",
                                      "Line 3: missing ')' in QUILL header command",
                                      "Line 3: QUILL header command has no name"}));
}

TEST(HeaderLineWarnings, NameTheLineInFull) {
  std::vector<std::string> warnings;
  parse_header_command_line("#", warnings, 12345678);
  parse_header_command_line("#opt(", warnings, 10000);
  parse_header_command_line("#opt() x", warnings, 9999);
  parse_header_command_line("#=", warnings, std::numeric_limits<std::uint64_t>::max());
  EXPECT_EQ(warnings, (std::vector<std::string>{
                          "Line 12345678: empty QUILL header command",
                          "Line 10000: missing ')' in QUILL header command",
                          "Line 9999: ignored trailing text after QUILL header command",
                          "Line 18446744073709551615: QUILL header command has no name"}));
}

struct ListRow {
  std::string name;
  std::string list;
  Parameters parameters;
};

void PrintTo(const ListRow& row, std::ostream* out) { *out << testing::PrintToString(row.list); }

class ParameterList : public testing::TestWithParam<ListRow> {};

TEST_P(ParameterList, IsReadAs) {
  EXPECT_EQ(parse_parameter_list(GetParam().list), GetParam().parameters);
}

const ListRow pieces[] = {
    {"Nothing", "", {}},
    {"Blanks", " \t ", {}},
    {"ACommaAlone", ",", {}},
    {"CommasAndBlanks", " , , ", {}},
    {"ABareName", "tight", {{"tight"}}},
    {"OneLetterEach", "a,b", {{"a"}, {"b"}}},
    {"TheLastPieceIsOneToo", "a,b,c", {{"a"}, {"b"}, {"c"}}},
    {"BlanksAroundPieces", " a\t,\rb ", {{"a"}, {"b"}}},
    {"AnEmptyPieceInTheMiddle", "a,,b", {{"a"}, {"b"}}},
    {"ABlankPieceInTheMiddle", "a, ,b", {{"a"}, {"b"}}},
    {"ALeadingComma", ",a", {{"a"}}},
    {"ATrailingComma", "a,", {{"a"}}},
    {"InnerBlanksAreKept", "a  b, c d = e f", {{"a  b"}, {"c d", "e f"}}},
    {"LetterCaseIsKept", "MaxIter=A", {{"MaxIter", "A"}}},
    {"RepeatedNamesAreKeptInOrder", "a=2,b,a=1", {{"a", "2"}, {"b"}, {"a", "1"}}},
    {"BlanksAroundTheEqualsSign", " a =\t1 ", {{"a", "1"}}},
    {"AnEmptyValue", "a=", {{"a", ""}}},
    {"ABlankValue", "a= ,b", {{"a", ""}, {"b"}}},
    {"AnEmptyValueInQuotes", "a=''", {{"a", ""}}},
    {"TheFirstEqualsSignSeparates", "a=1=2", {{"a", "1=2"}}},
    {"TwoEqualsSigns", "a==1", {{"a", "=1"}}},
    {"WithoutANameThePieceIsDropped", "a,=5, = 6,=,b", {{"a"}, {"b"}}},
    {"ParenthesesDoNotNest", "a=(1,2)", {{"a", "(1"}, {"2)"}}},
    {"AHashIsAnOrdinaryCharacter", "#a=#1", {{"#a", "#1"}}},
    {"BytesOutsideAscii", "\xC3\xA9=\xFF,\x80", {{"\xC3\xA9", "\xFF"}, {"\x80"}}},
    {"NulBytes", "\0=\0,\0"s, {{"\0"s, "\0"s}, {"\0"s}}},
};
INSTANTIATE_TEST_SUITE_P(Pieces, ParameterList, testing::ValuesIn(pieces),
                         [](const auto& row) { return row.param.name; });

const ListRow quoted[] = {
    {"ApostrophesProtectACommaInAValue", "a='1,2',b", {{"a", "1,2"}, {"b"}}},
    {"DoubleQuotesProtectACommaInAValue", "a=\"1,2\",b", {{"a", "1,2"}, {"b"}}},
    {"ApostrophesProtectACommaInAName", "'a,b',c", {{"'a,b'"}, {"c"}}},
    {"DoubleQuotesProtectACommaInAName", "\"a,b\",c", {{"\"a,b\""}, {"c"}}},
    {"QuotesInTheMiddleProtectToo", "x'a,b'y,c", {{"x'a,b'y"}, {"c"}}},
    {"QuotesOverAnEqualsSign", "'x,y=1',b", {{"'x,y", "1'"}, {"b"}}},
    {"QuotesTwiceInAPiece", "'a,b' 'c,d',e", {{"'a,b' 'c,d'"}, {"e"}}},
    {"EmptyApostrophesBeforeAComma", "a='',b=c", {{"a", ""}, {"b", "c"}}},
    {"EmptyDoubleQuotesBeforeAComma", "a=\"\",b=c", {{"a", ""}, {"b", "c"}}},
    {"ACommaBetweenTwoQuotedParts", "'a','b'", {{"'a'"}, {"'b'"}}},
    {"ABareNameKeepsItsQuotes", "'a b'", {{"'a b'"}}},
    {"TheNameOfAValueKeepsItsQuotes", "'a'='b'", {{"'a'", "b"}}},
    {"BlanksBetweenQuotesAreKept", "a= ' 1 ' ", {{"a", " 1 "}}},
    {"OnePairOfQuotesIsRemoved", "a=''1''", {{"a", "'1'"}}},
    {"ADoubleQuoteBetweenApostrophes", "a='x\"',b", {{"a", "x\""}, {"b"}}},
    {"AnApostropheBetweenDoubleQuotes", "a=\"it's\",b", {{"a", "it's"}, {"b"}}},
    {"BothQuotesOnceBetweenTheOthers", "'\"',\"'\",c", {{"'\"'"}, {"\"'\""}, {"c"}}},
    {"AnUnclosedApostropheTakesTheRest", "z,a='1,b=2,c", {{"z"}, {"a", "'1,b=2,c"}}},
    {"AnUnclosedDoubleQuoteTakesTheRest", "z,a=\"1,b=2,c", {{"z"}, {"a", "\"1,b=2,c"}}},
    {"QuotesOfTwoKindsDoNotClose", "a='1\",b", {{"a", "'1\",b"}}},
    {"ABackslashIsNoEscape", "a='x\\',b,c\\,d", {{"a", "x\\"}, {"b"}, {"c\\"}, {"d"}}},
    {"ABackquoteIsNoQuote", "`a,b`", {{"`a"}, {"b`"}}},
};
INSTANTIATE_TEST_SUITE_P(Quoted, ParameterList, testing::ValuesIn(quoted),
                         [](const auto& row) { return row.param.name; });

struct ValueRow {
  std::string name;
  std::string value;
  std::string unquoted;
};

void PrintTo(const ValueRow& row, std::ostream* out) { *out << testing::PrintToString(row.value); }

class Value : public testing::TestWithParam<ValueRow> {};

TEST_P(Value, IsUnquotedAs) { EXPECT_EQ(unquote_value(GetParam().value), GetParam().unquoted); }

const ValueRow values[] = {
    {"Nothing", "", ""},
    {"Blanks", " \t\v\f\r\n", ""},
    {"AWord", " a ", "a"},
    {"ApostrophesAroundAWord", "'a'", "a"},
    {"DoubleQuotesAroundAWord", "\"a\"", "a"},
    {"BlanksOutsideGo", "\t'a' ", "a"},
    {"BlanksInsideStay", "\" a \"", " a "},
    {"TwoApostrophes", "''", ""},
    {"TwoDoubleQuotes", "\"\"", ""},
    {"ThreeApostrophes", "'''", "'"},
    {"OneApostrophe", "'", "'"},
    {"OneDoubleQuote", " \" ", "\""},
    {"ABlankBetweenQuotes", "' '", " "},
    {"OnePairOnly", "''a''", "'a'"},
    {"DoubleQuotesBetweenApostrophes", "'\"a\"'", "\"a\""},
    {"AQuoteInTheMiddle", "'a'b'", "a'b"},
    {"OpenedOnly", "'a", "'a"},
    {"ClosedOnly", "a'", "a'"},
    {"DoubleQuoteOpenedApostropheClosed", "\"a'", "\"a'"},
    {"ApostropheOpenedDoubleQuoteClosed", "'a\"", "'a\""},
    {"TheSameLetterAtBothEnds", "aba", "aba"},
    {"Backquotes", "`a`", "`a`"},
    {"NulBytesBetweenQuotes", "'\0'"s, "\0"s},
};
INSTANTIATE_TEST_SUITE_P(Table, Value, testing::ValuesIn(values),
                         [](const auto& row) { return row.param.name; });

}  // namespace
}  // namespace kelp::input::quill
