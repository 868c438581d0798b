// The diagnostics of texts with problems, and their order.

#include <gtest/gtest.h>

#include <string>

#include "interface/expected.hpp"
#include "kelp/input/quill/quill.hpp"
#include "support/comparison.hpp"
#include "support/printing.hpp"

namespace kelp::input::quill {
namespace {

using namespace std::string_literals;

using Kind = PostCommandKind;

class ReadingDiagnostics : public testing::TestWithParam<ReadingRow> {};

TEST_P(ReadingDiagnostics, Are) { EXPECT_EQ(parse_string(GetParam().text), GetParam().result); }

const ReadingRow single_rows[] = {
    {"AnEmptyHeaderCommand", "#\n0 1",
     read_as({{flag("")}, charged(0, 1)}, {"Line 1: empty QUILL header command"})},
    {"AMissingParenthesis", "#opt(\n0 1",
     read_as({{list("opt", {})}, charged(0, 1)}, {"Line 1: missing ')' in QUILL header command"})},
    {"TrailingText", "#opt()x\n0 1",
     read_as({{list("opt", {})}, charged(0, 1)},
             {"Line 1: ignored trailing text after QUILL header command"})},
    {"ACommandWithoutAName", "#=\n0 1",
     read_as({{assignment("", "")}, charged(0, 1)}, {"Line 1: QUILL header command has no name"})},
    {"AReferenceWithoutAPath", "XYZ",
     read_as({{}, files({})}, {"Line 1: XYZ reference has no file path"})},
    {"ATrajectoryWithoutAPath", "XYZTRAJ",
     read_as({{}, trajectory({})}, {"Line 1: XYZTRAJ reference has no file path"})},
    {"AnUnknownElement", "Xx 0 0 0",
     read_as({{}, atoms({{"Xx", 0, 0, 0}})}, {"Line 1: unknown element symbol 'Xx'"})},
    {"AMalformedPostProcessingLine", "0 1\nC x",
     read_as({{}, charged(0, 1)}, {"Line 2: ignored unrecognized QUILL post-processing line"})},
    {"NoCoordinates", "#opt", read_as({{flag("opt")}}, {no_section})},
};
INSTANTIATE_TEST_SUITE_P(Single, ReadingDiagnostics, testing::ValuesIn(single_rows),
                         [](const auto& row) { return row.param.name; });

const ReadingRow missing_section_rows[] = {
    {"NothingAtAll", "", read_as({}, {no_section})},
    {"ItIsTheLast", "#\nC x\nB 1 y\n",
     read_as({{flag("")}},
             {"Line 1: empty QUILL header command",
              "Line 2: ignored unrecognized QUILL post-processing line",
              "Line 3: ignored unrecognized QUILL post-processing line", no_section})},
    {"NotWithAChargeAlone", "0 1\n", read_as({{}, charged(0, 1)})},
    {"NotWithAnAtomAlone", "O 0 0 0", read_as({{}, atoms({{"O", 0, 0, 0}})})},
    {"NotWithAReferenceWhosePathIsMissing", "XYZ",
     read_as({{}, files({})}, {"Line 1: XYZ reference has no file path"})},
    {"NotWithATrajectoryWhosePathIsMissing", "XYZTRAJ",
     read_as({{}, trajectory({})}, {"Line 1: XYZTRAJ reference has no file path"})},
    {"WithCoordinatesInTheWrongPlace", "note\nO 0 0 0",
     read_as({{}, {}, {raw("note"), raw("O 0 0 0")}}, {no_section})},
};
INSTANTIATE_TEST_SUITE_P(MissingSection, ReadingDiagnostics,
                         testing::ValuesIn(missing_section_rows),
                         [](const auto& row) { return row.param.name; });

const ReadingRow ordered_rows[] = {
    {"AllOfATextWithAtoms",
     "\n#\n#opt(a\n\n#freq() x\n# = 1\n#(b=2\n\n0 1\nXx 0 0 0\nO 0 0 0\n\nQ 0 0 0\nB 1 x\nnote\nC "
     "1.5\n",
     read_as(
         {{flag(""), list("opt", {{"a"}}), list("freq", {}), assignment("", "1"),
           list("", {{"b", "2"}})},
          charged(0, 1, atoms({{"Xx", 0, 0, 0}, {"O", 0, 0, 0}, {"Q", 0, 0, 0}})),
          {raw("note")}},
         {"Line 2: empty QUILL header command", "Line 3: missing ')' in QUILL header command",
          "Line 5: ignored trailing text after QUILL header command",
          "Line 6: QUILL header command has no name", "Line 7: missing ')' in QUILL header command",
          "Line 7: QUILL header command has no name", "Line 10: unknown element symbol 'Xx'",
          "Line 13: unknown element symbol 'Q'",
          "Line 14: ignored unrecognized QUILL post-processing line",
          "Line 16: ignored unrecognized QUILL post-processing line"})},
    {"AllOfATextWithReferences", "#\nXYZ\n\nXYZ a\nxyz\nXYZTRAJ\nS 1 2 x 3\n",
     read_as({{flag("")}, files({"a"}), {raw("XYZTRAJ")}},
             {"Line 1: empty QUILL header command", "Line 2: XYZ reference has no file path",
              "Line 5: XYZ reference has no file path",
              "Line 7: ignored unrecognized QUILL post-processing line"})},
    {"TheSameThingTwice", "#\n#\n0 1",
     read_as({{flag(""), flag("")}, charged(0, 1)},
             {"Line 1: empty QUILL header command", "Line 2: empty QUILL header command"})},
    {"LineEndsOfTwoBytesCountOnce", "\r\n\r\n#\r\n\r\nXx 0 0 0\r\nC x\r\n",
     read_as({{flag("")}, atoms({{"Xx", 0, 0, 0}})},
             {"Line 3: empty QUILL header command", "Line 5: unknown element symbol 'Xx'",
              "Line 6: ignored unrecognized QUILL post-processing line"})},
    {"CarriageReturnsAloneDoNotCount", "\r\r#\n0 1",
     read_as({{flag("")}, charged(0, 1)}, {"Line 1: empty QUILL header command"})},
};
INSTANTIATE_TEST_SUITE_P(Ordered, ReadingDiagnostics, testing::ValuesIn(ordered_rows),
                         [](const auto& row) { return row.param.name; });

TEST(ReadingDiagnosticsOf, BlankLinesAndAHashNameTheThirdLine) {
  EXPECT_EQ(parse_string("\n\n#\n0 1").warnings,
            std::vector<std::string>{"Line 3: empty QUILL header command"});
}

TEST(ReadingDiagnosticsOf, LongTextsNameLinesInFull) {
  const std::string blank_lines(9998, '\n');
  EXPECT_EQ(
      parse_string(blank_lines + "#\n#\n0 1\nXx 0 0 0" + blank_lines + "\nC x\n"),
      read_as({{flag(""), flag("")}, charged(0, 1, atoms({{"Xx", 0, 0, 0}}))},
              {"Line 9999: empty QUILL header command", "Line 10000: empty QUILL header command",
               "Line 10002: unknown element symbol 'Xx'",
               "Line 20001: ignored unrecognized QUILL post-processing line"}));
}

}  // namespace
}  // namespace kelp::input::quill
