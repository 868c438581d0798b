#include "reader/diagnostics.hpp"

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <string>
#include <string_view>

namespace kelp::input::quill {
namespace {

using namespace std::string_literals;

TEST(Diagnostics, SayWhatTheyAlwaysSaid) {
  EXPECT_EQ(message::empty_header_command, "empty QUILL header command");
  EXPECT_EQ(message::missing_parenthesis, "missing ')' in QUILL header command");
  EXPECT_EQ(message::trailing_text, "ignored trailing text after QUILL header command");
  EXPECT_EQ(message::nameless_command, "QUILL header command has no name");
  EXPECT_EQ(message::xyz_without_path, "XYZ reference has no file path");
  EXPECT_EQ(message::trajectory_without_path, "XYZTRAJ reference has no file path");
  EXPECT_EQ(message::unrecognized_post_line, "ignored unrecognized QUILL post-processing line");
  EXPECT_EQ(message::no_coordinates, "No QUILL coordinate section found");
}

TEST(Diagnostics, BeginWithTheLineNumber) {
  EXPECT_EQ(line_diagnostic(1, "anything"), "Line 1: anything");
}

TEST(Diagnostics, WriteLineNumbersInFull) {
  EXPECT_EQ(line_diagnostic(9, ""), "Line 9: ");
  EXPECT_EQ(line_diagnostic(10, ""), "Line 10: ");
  EXPECT_EQ(line_diagnostic(9999, ""), "Line 9999: ");
  EXPECT_EQ(line_diagnostic(10000, ""), "Line 10000: ");
  EXPECT_EQ(line_diagnostic(1234567, ""), "Line 1234567: ");
  EXPECT_EQ(line_diagnostic(std::numeric_limits<std::uint32_t>::max(), ""), "Line 4294967295: ");
  EXPECT_EQ(line_diagnostic(std::numeric_limits<std::uint64_t>::max(), ""),
            "Line 18446744073709551615: ");
}

TEST(Diagnostics, KeepEveryByteOfTheMessage) {
  EXPECT_EQ(line_diagnostic(2, std::string_view("a\0\xFF", 3)), "Line 2: a\0\xFF"s);
}

TEST(Diagnostics, AreTakenApart) {
  const DiagnosticParts numbered = split_diagnostic("Line 12: a: b");
  EXPECT_EQ(numbered.line, 12U);
  EXPECT_EQ(numbered.message, "a: b");
  EXPECT_EQ(split_diagnostic("Line 18446744073709551615: ").line, 18446744073709551615U);
  EXPECT_EQ(split_diagnostic("Line 18446744073709551615: ").message, "");
}

TEST(Diagnostics, ThatOnlyLookNumberedAreKeptWhole) {
  for (const char* const text :
       {"No QUILL coordinate section found", "Line 12", "Line : x", "Line x: y", "Line 12 x",
        "line 12: x", "Line", "Line 12:x", "Line -1: x", "Line 18446744073709551616: x", ""}) {
    EXPECT_EQ(split_diagnostic(text).line, std::nullopt) << text;
    EXPECT_EQ(split_diagnostic(text).message, text);
  }
}

TEST(Diagnostics, PutAnUnknownSymbolInApostrophes) {
  EXPECT_EQ(unknown_element_diagnostic(12, "Xx"), "Line 12: unknown element symbol 'Xx'");
  EXPECT_EQ(unknown_element_diagnostic(3, ""), "Line 3: unknown element symbol ''");
}

TEST(Diagnostics, NameAFileThatCannotBeOpenedAsItWasGiven) {
  EXPECT_EQ(open_failure("no/file here"), "Failed to open QUILL input file: no/file here");
  EXPECT_EQ(open_failure(""), "Failed to open QUILL input file: ");
  EXPECT_EQ(open_failure(std::string_view("a\0b", 3)), "Failed to open QUILL input file: a\0b"s);
}

}  // namespace
}  // namespace kelp::input::quill
