#include "quill-inp/text/terminal_text.hpp"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

namespace kelp::input::quill::tool {
namespace {

struct Row {
  std::string_view name;
  std::string_view text;
  std::string_view on_one_line;
  std::string_view as_lines;
};

class TerminalText : public testing::TestWithParam<Row> {};

const Row rows[] = {
    {"NoText", "", "", ""},
    {"PlainText", "opt (a\\b)", "opt (a\\b)", "opt (a\\b)"},
    {"Utf8IsShown", "\xC3\xA4\xE2\x82\xAC", "\xC3\xA4\xE2\x82\xAC", "\xC3\xA4\xE2\x82\xAC"},
    {"LineEnd", "a\nb", "a\\nb", "a\nb"},
    {"CarriageReturnAlone", "a\rb", "a\\rb", "a\\rb"},
    {"CarriageReturnOfALineEnd", "a\r\nb", "a\\r\\nb", "a\r\nb"},
    {"CarriageReturnAtTheEnd", "a\r", "a\\r", "a\\r"},
    {"TwoCarriageReturns", "a\r\r\n", "a\\r\\r\\n", "a\\r\r\n"},
    {"Tab", "a\tb", "a\\tb", "a\tb"},
    {"Nul", std::string_view("a\0b", 3), "a\\x00b", "a\\x00b"},
    {"Escape", "\x1B[2J", "\\x1b[2J", "\\x1b[2J"},
    {"LastControlCharacter", "\x1F ", "\\x1f ", "\\x1f "},
    {"Delete", "~\x7F", "~\\u007f", "~\\u007f"},
    {"ControlSequenceInOneCharacter", "\xC2\x9B", "\\u009b", "\\u009b"},
    {"NoBreakSpace", "\xC2\xA0", "\\u00a0", "\\u00a0"},
    {"FirstAfterTheControls", "\xC2\xA1", "\xC2\xA1", "\xC2\xA1"},
    {"BeforeTheSoftHyphen", "\xC2\xAC", "\xC2\xAC", "\xC2\xAC"},
    {"SoftHyphen", "\xC2\xAD", "\\u00ad", "\\u00ad"},
    {"AfterTheSoftHyphen", "\xC2\xAE", "\xC2\xAE", "\xC2\xAE"},
    {"GraphemeJoiner", "\xCD\x8F", "\\u034f", "\\u034f"},
    {"ArabicLetterMark", "\xD8\x9C", "\\u061c", "\\u061c"},
    {"HangulFillers", "\xE1\x85\x9F\xE1\x85\xA0", "\\u115f\\u1160", "\\u115f\\u1160"},
    {"OghamSpace", "\xE1\x9A\x80", "\\u1680", "\\u1680"},
    {"KhmerVowelsWithoutAForm", "\xE1\x9E\xB4\xE1\x9E\xB5", "\\u17b4\\u17b5", "\\u17b4\\u17b5"},
    {"MongolianSelectors", "\xE1\xA0\x8B\xE1\xA0\x8F", "\\u180b\\u180f", "\\u180b\\u180f"},
    {"BeforeTheBlanks", "\xE1\xBF\xBE", "\xE1\xBF\xBE", "\xE1\xBF\xBE"},
    {"FirstBlank", "\xE2\x80\x80", "\\u2000", "\\u2000"},
    {"BlankWithoutWidth", "\xE2\x80\x8B", "\\u200b", "\\u200b"},
    {"LeftToRightMark", "\xE2\x80\x8E", "\\u200e", "\\u200e"},
    {"RightToLeftMark", "\xE2\x80\x8F", "\\u200f", "\\u200f"},
    {"AfterTheMarks", "\xE2\x80\x90", "\xE2\x80\x90", "\xE2\x80\x90"},
    {"LineSeparator", "\xE2\x80\xA8", "\\u2028", "\\u2028"},
    {"RightToLeftOverride",
     "a\xE2\x80\xAE"
     "b",
     "a\\u202eb", "a\\u202eb"},
    {"BeforeTheLineSeparator", "\xE2\x80\xA7", "\xE2\x80\xA7", "\xE2\x80\xA7"},
    {"NarrowNoBreakSpace", "\xE2\x80\xAF", "\\u202f", "\\u202f"},
    {"AfterTheOverrides", "\xE2\x80\xB0", "\xE2\x80\xB0", "\xE2\x80\xB0"},
    {"BeforeTheMathematicalSpace", "\xE2\x81\x9E", "\xE2\x81\x9E", "\xE2\x81\x9E"},
    {"MathematicalSpace", "\xE2\x81\x9F", "\\u205f", "\\u205f"},
    {"FirstIsolate", "\xE2\x81\xA6", "\\u2066", "\\u2066"},
    {"LastIsolate", "\xE2\x81\xA9", "\\u2069", "\\u2069"},
    {"LastInvisibleOperator", "\xE2\x81\xAF", "\\u206f", "\\u206f"},
    {"AfterTheInvisibleOperators", "\xE2\x81\xB0", "\xE2\x81\xB0", "\xE2\x81\xB0"},
    {"BrailleBlank", "\xE2\xA0\x80", "\\u2800", "\\u2800"},
    {"BrailleDot", "\xE2\xA0\x81", "\xE2\xA0\x81", "\xE2\xA0\x81"},
    {"IdeographicSpace", "\xE3\x80\x80", "\\u3000", "\\u3000"},
    {"IdeographicComma", "\xE3\x80\x81", "\xE3\x80\x81", "\xE3\x80\x81"},
    {"HangulFiller", "\xE3\x85\xA4", "\\u3164", "\\u3164"},
    {"VariationSelectors", "\xEF\xB8\x80\xEF\xB8\x8F", "\\ufe00\\ufe0f", "\\ufe00\\ufe0f"},
    {"ByteOrderMark", "\xEF\xBB\xBF#sp", "\\ufeff#sp", "\\ufeff#sp"},
    {"HalfWidthHangulFiller", "\xEF\xBE\xA0", "\\uffa0", "\\uffa0"},
    {"Annotations", "\xEF\xBF\xB0\xEF\xBF\xBB", "\\ufff0\\ufffb", "\\ufff0\\ufffb"},
    {"ReplacementCharacter", "\xEF\xBF\xBD", "\xEF\xBF\xBD", "\xEF\xBF\xBD"},
    {"FirstAboveTheBasicPlane", "\xF0\x90\x80\x80", "\xF0\x90\x80\x80", "\xF0\x90\x80\x80"},
    {"ControlsOfShorthand", "\xF0\x9B\xB2\xA0\xF0\x9B\xB2\xA3", "\\ud82f\\udca0\\ud82f\\udca3",
     "\\ud82f\\udca0\\ud82f\\udca3"},
    {"ControlsOfMusic", "\xF0\x9D\x85\xB3\xF0\x9D\x85\xBA", "\\ud834\\udd73\\ud834\\udd7a",
     "\\ud834\\udd73\\ud834\\udd7a"},
    {"Tags", "\xF3\xA0\x80\x80\xF3\xA0\xBF\xBF", "\\udb40\\udc00\\udb43\\udfff",
     "\\udb40\\udc00\\udb43\\udfff"},
    {"AfterTheTags", "\xF3\xA1\x80\x80", "\xF3\xA1\x80\x80", "\xF3\xA1\x80\x80"},
    {"NotUtf8", "\xFF\xC3", "\\xff\\xc3", "\\xff\\xc3"},
    {"NotUtf8BeforeText", "\xC3(", "\\xc3(", "\\xc3("},
};

TEST_P(TerminalText, EscapesWhatATerminalObeysAndWhatNobodySees) {
  EXPECT_EQ(shown_on_one_line(GetParam().text), GetParam().on_one_line);
  EXPECT_EQ(shown_as_lines(GetParam().text), GetParam().as_lines);
}

INSTANTIATE_TEST_SUITE_P(Table, TerminalText, testing::ValuesIn(rows),
                         [](const auto& row) { return std::string(row.param.name); });

TEST(TerminalText, LeavesNoControlByteOfAny) {
  for (int byte = 0; byte < 256; ++byte) {
    const std::string shown = shown_on_one_line(std::string(1, static_cast<char>(byte)));
    EXPECT_GE(shown.front(), ' ') << byte;
    EXPECT_LE(shown.front(), '~') << byte;
    EXPECT_EQ(shown.size() == 1, ' ' <= byte && byte <= '~') << byte;
  }
}

}  // namespace
}  // namespace kelp::input::quill::tool
