// Header lines within whole texts. Each row's lines are followed by "0 1", so that no row has the
// diagnostic about missing coordinates.

#include <gtest/gtest.h>

#include <string>

#include "interface/expected.hpp"
#include "kelp/input/quill/quill.hpp"
#include "support/comparison.hpp"
#include "support/printing.hpp"

namespace kelp::input::quill {
namespace {

using namespace std::string_literals;

class ReadingHeader : public testing::TestWithParam<ReadingRow> {};

TEST_P(ReadingHeader, Gives) {
  EXPECT_EQ(parse_string(GetParam().text + "\n0 1\n"), GetParam().result);
}

ParseResult header(std::vector<HeaderCommand> commands, std::vector<std::string> warnings = {}) {
  return read_as({std::move(commands), charged(0, 1)}, std::move(warnings));
}

const ReadingRow flag_rows[] = {
    {"AFlag", "#opt", header({flag("opt")})},
    {"BlanksAfterTheHash", "#  opt", header({flag("opt")})},
    {"OneHashIsRemoved", "##freq", header({flag("#freq")})},
    {"InnerBlanks", "#freq opt", header({flag("freq opt")})},
    {"LetterCaseIsKept", "#Opt", header({flag("Opt")})},
    {"AHashAlone", "#", header({flag("")}, {"Line 1: empty QUILL header command"})},
    {"AHashAndBlanks", "# \t ", header({flag("")}, {"Line 1: empty QUILL header command"})},
};
INSTANTIATE_TEST_SUITE_P(Flags, ReadingHeader, testing::ValuesIn(flag_rows),
                         [](const auto& row) { return row.param.name; });

const ReadingRow assignment_rows[] = {
    {"AnAssignment", "#model = m1", header({assignment("model", "m1")})},
    {"Apostrophes", "# model = 'b3 lyp'", header({assignment("model", "b3 lyp")})},
    {"DoubleQuotes", "# model = \"b3 lyp\"", header({assignment("model", "b3 lyp")})},
    {"BlanksBetweenQuotes", "#model = \" a \"", header({assignment("model", " a ")})},
    {"AnEqualsSignBeforeTheParenthesis", "#a=b(c)", header({assignment("a", "b(c)")})},
    {"AFunctionCall", "# x = f(1)", header({assignment("x", "f(1)")})},
    {"AnEmptyValue", "#model =", header({assignment("model", "")})},
    {"NoName", "# = 5",
     header({assignment("", "5")}, {"Line 1: QUILL header command has no name"})},
};
INSTANTIATE_TEST_SUITE_P(Assignments, ReadingHeader, testing::ValuesIn(assignment_rows),
                         [](const auto& row) { return row.param.name; });

const std::string unclosed = "Line 1: missing ')' in QUILL header command";
const std::string trailing = "Line 1: ignored trailing text after QUILL header command";
const std::string nameless = "Line 1: QUILL header command has no name";

const ReadingRow list_rows[] = {
    {"KeyedAndBare", "#opt(maxiter=100, tight)",
     header({list("opt", {{"maxiter", "100"}, {"tight"}})})},
    {"AnEqualsSignAfterTheParenthesis", "#a(b=c)", header({list("a", {{"b", "c"}})})},
    {"AnEqualsSignBetweenTheParentheses", "# opt(maxiter=50)",
     header({list("opt", {{"maxiter", "50"}})})},
    {"ACommaBetweenApostrophes", "#opt(x='1,2', y=3)",
     header({list("opt", {{"x", "1,2"}, {"y", "3"}})})},
    {"ACommaBetweenDoubleQuotes", "#opt(x=\"1,2\", y=3)",
     header({list("opt", {{"x", "1,2"}, {"y", "3"}})})},
    {"InnerParenthesesDoNotNest", "#opt(a=(1,2))", header({list("opt", {{"a", "(1"}, {"2)"}})})},
    {"AnUnclosedQuote", "#opt(a='1, b=2)", header({list("opt", {{"a", "'1, b=2"}})})},
    {"PiecesWithoutAName", "#opt(a,,=5, b,)", header({list("opt", {{"a"}, {"b"}})})},
    {"AnEmptyValue", "#opt(a=)", header({list("opt", {{"a", ""}})})},
    {"AQuotedBareName", "#opt('a b')", header({list("opt", {{"'a b'"}})})},
    {"RepeatedParameters", "#opt(a=2, A=1, a)",
     header({list("opt", {{"a", "2"}, {"A", "1"}, {"a"}})})},
    {"NoParameters", "#opt()", header({list("opt", {})})},
    {"NoClosingParenthesis", "#opt(x=1", header({list("opt", {{"x", "1"}})}, {unclosed})},
    {"AClosingParenthesisInTheName", "#opt)x(y", header({list("opt)x", {{"y"}})}, {unclosed})},
    {"TrailingText", "#opt(x=1) junk", header({list("opt", {{"x", "1"}})}, {trailing})},
    {"TrailingTextAfterInnerParentheses", "# opt(a=(1)) x",
     header({list("opt", {{"a", "(1)"}})}, {trailing})},
    {"NoName", "# (a=1)", header({list("", {{"a", "1"}})}, {nameless})},
    {"NeitherNameNorEnd", "#(x=1", header({list("", {{"x", "1"}})}, {unclosed, nameless})},
    {"NoNameAndTrailingText", "#(x=1) y", header({list("", {{"x", "1"}})}, {trailing, nameless})},
};
INSTANTIATE_TEST_SUITE_P(Lists, ReadingHeader, testing::ValuesIn(list_rows),
                         [](const auto& row) { return row.param.name; });

TEST(ReadingHeaderLines, AreCommandsInTheOrderOfTheText) {
  EXPECT_EQ(parse_string("#opt(maxiter=50)\n#device = gpu\n# freq\n#MODEL='m 1'\n\n0 1\n"),
            header({list("opt", {{"maxiter", "50"}}), assignment("device", "gpu"), flag("freq"),
                    assignment("MODEL", "m 1")}));
}

TEST(ReadingHeaderLines, AreFoundByTheirNames) {
  ParseResult result = parse_string("# OPT (MaxIter = 50)\n#Model=m1\n##opt\n0 1\n");
  const HeaderCommand* const opt = result.input.find_command("opt", 0);
  ASSERT_NE(opt, nullptr);
  EXPECT_EQ(*opt, list("OPT", {{"MaxIter", "50"}}));
  EXPECT_EQ(find_parameter_index(*opt, "maxiter"), 0U);
  EXPECT_TRUE(result.input.has_command("#model"));
  EXPECT_TRUE(result.input.has_task_command());
  ASSERT_NE(result.input.find_command("opt", 1), nullptr);
  EXPECT_EQ(result.input.find_command("opt", 1)->name, "#opt");
}

}  // namespace
}  // namespace kelp::input::quill
