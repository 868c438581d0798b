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
    {"Delete", "~\x7F", "~\\x7f", "~\\x7f"},
    {"ControlSequenceInOneCharacter", "\xC2\x9B", "\\u009b", "\\u009b"},
    {"FirstAfterTheControls", "\xC2\xA0", "\xC2\xA0", "\xC2\xA0"},
    {"ArabicLetterMark", "\xD8\x9C", "\\u061c", "\\u061c"},
    {"BeforeTheMarks", "\xE2\x80\x8D", "\xE2\x80\x8D", "\xE2\x80\x8D"},
    {"LeftToRightMark", "\xE2\x80\x8E", "\\u200e", "\\u200e"},
    {"RightToLeftMark", "\xE2\x80\x8F", "\\u200f", "\\u200f"},
    {"AfterTheMarks", "\xE2\x80\x90", "\xE2\x80\x90", "\xE2\x80\x90"},
    {"LineSeparator", "\xE2\x80\xA8", "\\u2028", "\\u2028"},
    {"RightToLeftOverride",
     "a\xE2\x80\xAE"
     "b",
     "a\\u202eb", "a\\u202eb"},
    {"AfterTheOverrides", "\xE2\x80\xAF", "\xE2\x80\xAF", "\xE2\x80\xAF"},
    {"FirstIsolate", "\xE2\x81\xA6", "\\u2066", "\\u2066"},
    {"LastIsolate", "\xE2\x81\xA9", "\\u2069", "\\u2069"},
    {"AfterTheIsolates", "\xE2\x81\xAA", "\xE2\x81\xAA", "\xE2\x81\xAA"},
    {"NotUtf8", "\xFF\xC3", "\\xff\\xc3", "\\xff\\xc3"},
    {"NotUtf8BeforeText", "\xC3(", "\\xc3(", "\\xc3("},
};

TEST_P(TerminalText, ShowsWhatATerminalWouldObey) {
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
