// The checks notice what they are there to notice: each is given a result that is wrong in one
// place.

#include <gtest/gtest.h>

#include <cstddef>
#include <functional>
#include <ostream>
#include <string>
#include <string_view>
#include <utility>

#include "properties/holds.hpp"
#include "properties/reading.hpp"
#include "properties/warning_text.hpp"

namespace kelp::input::quill {
namespace {

constexpr std::string_view text =
    "#opt(a=1) b\n"
    "#\n"
    "0 1\n"
    "H 0 0 0\n"
    "Xx 0 0 1\n"
    "\n"
    "B 1 2\n"
    "B 1 x\n"
    "S 1 2 1.5 10\n"
    "POST a\n"
    "text\n";

constexpr std::string_view reference_text = "XYZ\nXYZ a\n";

struct Row {
  std::string_view name;
  std::function<void(ParseResult&)> spoil;
  std::string_view property;
  std::string_view of = text;
};

void PrintTo(const Row& row, std::ostream* out) { *out << row.name; }

PostCommand& post(ParseResult& result, std::size_t place) {
  return result.input.post_commands.at(place);
}

const Row rows[] = {
    {"NotOk", [](ParseResult& r) { r.ok = false; }, "ok is true"},
    {"AnError", [](ParseResult& r) { r.error = "x"; }, "error is empty"},
    {"ACommandLess", [](ParseResult& r) { r.input.commands.pop_back(); }, "no line is lost"},
    {"AnAtomLess", [](ParseResult& r) { r.input.geometry.atoms.pop_back(); }, "no line is lost"},
    {"AnAtomTwice",
     [](ParseResult& r) { r.input.geometry.atoms.push_back(r.input.geometry.atoms[0]); },
     "no line is lost"},
    {"NoCharge", [](ParseResult& r) { r.input.geometry.has_charge_and_multiplicity = false; },
     "no line is lost"},
    {"APostLineLess", [](ParseResult& r) { r.input.post_commands.pop_back(); }, "no line is lost"},
    {"AWarningAboutADroppedLineLess", [](ParseResult& r) { r.warnings.pop_back(); },
     "no line is lost"},
    {"APathLess", [](ParseResult& r) { r.input.geometry.xyz_files.clear(); }, "no line is lost",
     reference_text},
    {"AWarningAboutAPathLess", [](ParseResult& r) { r.warnings.clear(); }, "no line is lost",
     reference_text},
    {"AWarningOfNoLine", [](ParseResult& r) { r.warnings[0] = "line 1: x"; },
     "a warning begins with the number of its line"},
    {"AWarningWithoutColon", [](ParseResult& r) { r.warnings[0] = "Line 1 x"; },
     "a warning begins with the number of its line"},
    {"AWarningOfLineZero", [](ParseResult& r) { r.warnings[0] = "Line 0: x"; },
     "a warning begins with the number of its line"},
    {"AWarningOfAPaddedLine", [](ParseResult& r) { r.warnings[0] = "Line 01: x"; },
     "a warning begins with the number of its line"},
    {"WarningsOutOfOrder", [](ParseResult& r) { std::swap(r.warnings[0], r.warnings[1]); },
     "the numbers of the warnings never fall"},
    {"AWarningAfterTheText",
     [](ParseResult& r) {
       r.warnings.back() = "Line 12: ignored unrecognized QUILL post-processing line";
     },
     "the line of a warning exists"},
    {"AClaimOfNoSection",
     [](ParseResult& r) { r.warnings.emplace_back("No QUILL coordinate section found"); },
     "the last warning says whether there is a section"},
    {"NoAtoms", [](ParseResult& r) { r.input.geometry.kind = GeometryKind::XyzTrajectory; },
     "the kind is Atoms exactly when there are atoms"},
    {"PathsBesideAtoms",
     [](ParseResult& r) {
       r.input.geometry.xyz_files.push_back("a");
       r.input.geometry.atoms.pop_back();
     },
     "paths belong to references"},
    {"TwoTrajectories",
     [](ParseResult& r) {
       r.input.geometry.kind = GeometryKind::XyzTrajectory;
       r.input.geometry.xyz_files.push_back("b");
       r.warnings.clear();
     },
     "a trajectory has at most one path", reference_text},
    {"AChargeWithoutItsLine", [](ParseResult& r) { r.input.geometry.charge = 1; },
     "without their line, charge and multiplicity are 0 and 1", reference_text},
    {"ASymbolInUpperCase", [](ParseResult& r) { r.input.geometry.atoms[1].symbol = "XX"; },
     "symbols are spelled as elements are"},
    {"ASymbolWithADigit", [](ParseResult& r) { r.input.geometry.atoms[1].symbol = "X1"; },
     "symbols are spelled as elements are"},
    {"NoSymbol", [](ParseResult& r) { r.input.geometry.atoms[1].symbol = ""; },
     "symbols are spelled as elements are"},
    {"APathWithABlank", [](ParseResult& r) { r.input.geometry.xyz_files[0] = "a "; },
     "paths have no outer blanks", reference_text},
    {"AnEmptyPath", [](ParseResult& r) { r.input.geometry.xyz_files[0] = ""; },
     "paths have no outer blanks", reference_text},
    {"AnAtomNumberMore", [](ParseResult& r) { post(r, 0).atom_indices.push_back(3); },
     "a post-processing line has the parts of its kind"},
    {"AnAtomNumberLess", [](ParseResult& r) { post(r, 1).atom_indices.pop_back(); },
     "a post-processing line has the parts of its kind"},
    {"NoScanValue", [](ParseResult& r) { post(r, 1).scan_value.reset(); },
     "a post-processing line has the parts of its kind"},
    {"NoScanSteps", [](ParseResult& r) { post(r, 1).scan_steps.reset(); },
     "a post-processing line has the parts of its kind"},
    {"AScanValueTooMuch", [](ParseResult& r) { post(r, 0).scan_value = 0; },
     "a post-processing line has the parts of its kind"},
    {"NoPostFile", [](ParseResult& r) { post(r, 2).post_file = ""; },
     "a post-processing line has the parts of its kind"},
    {"APostFileTooMuch", [](ParseResult& r) { post(r, 3).post_file = "a"; },
     "a post-processing line has the parts of its kind"},
    {"NoRawText", [](ParseResult& r) { post(r, 0).raw_text = ""; },
     "a post-processing line has the parts of its kind"},
    {"RawTextWithABlank", [](ParseResult& r) { post(r, 3).raw_text = " text"; },
     "a post-processing line has the parts of its kind"},
    {"AnUnknownKind", [](ParseResult& r) { post(r, 3).kind = static_cast<PostCommandKind>(7); },
     "a post-processing line has the parts of its kind"},
};

class SpoiledResult : public testing::TestWithParam<Row> {};

TEST_P(SpoiledResult, IsNoticed) {
  const std::string_view read = GetParam().of;
  ParseResult result = parse_string(read);
  ASSERT_TRUE(holds([&] { check_result(read, result); }));
  GetParam().spoil(result);
  const testing::AssertionResult outcome = holds([&] { check_result(read, result); });
  ASSERT_FALSE(outcome);
  EXPECT_NE(std::string_view(outcome.message()).find(GetParam().property), std::string_view::npos)
      << outcome.message();
  EXPECT_FALSE(holds([&] { check_against_obvious_reader(read, result); }));
}

INSTANTIATE_TEST_SUITE_P(Table, SpoiledResult, testing::ValuesIn(rows),
                         [](const auto& row) { return std::string(row.param.name); });

struct LineRow {
  std::string_view name;
  std::function<void(ParsedLines&)> spoil;
  std::string_view property;
};

void PrintTo(const LineRow& row, std::ostream* out) { *out << row.name; }

const LineRow line_rows[] = {
    {"AnotherResult", [](ParsedLines& p) { p.result.warnings.pop_back(); },
     "lines are read as a text is"},
    {"ALineLess", [](ParsedLines& p) { p.lines.pop_back(); }, "the records cover every byte"},
    {"ALineTooLate", [](ParsedLines& p) { ++p.lines[1].offset; }, "the records cover every byte"},
    {"AByteOfAnotherLine",
     [](ParsedLines& p) { ++p.lines[0].length, ++p.lines[1].offset, --p.lines[1].length; },
     "the records are those that counting gives"},
    {"ALineEndInTheLine",
     [](ParsedLines& p) { ++p.lines[0].length, --p.lines[0].terminator_length; },
     "the records are those that counting gives"},
    {"AnotherRole", [](ParsedLines& p) { p.lines[3].role = LineRole::PostCommand; },
     "the records are those that counting gives"},
    {"AnotherIndex", [](ParsedLines& p) { p.lines[4].index = 0; },
     "the records are those that counting gives"},
    {"NoIndex", [](ParsedLines& p) { p.lines[0].index.reset(); },
     "the records are those that counting gives"},
    {"ABlankLineTaken", [](ParsedLines& p) { p.lines[5].role = LineRole::Dropped; },
     "the records are those that counting gives"},
};

class SpoiledLines : public testing::TestWithParam<LineRow> {};

TEST_P(SpoiledLines, AreNoticed) {
  ParsedLines parsed = parse_lines(text);
  ASSERT_TRUE(holds([&] { check_lines(text, parsed); }));
  GetParam().spoil(parsed);
  const testing::AssertionResult outcome = holds([&] { check_lines(text, parsed); });
  ASSERT_FALSE(outcome);
  EXPECT_NE(std::string_view(outcome.message()).find(GetParam().property), std::string_view::npos)
      << outcome.message();
}

INSTANTIATE_TEST_SUITE_P(Table, SpoiledLines, testing::ValuesIn(line_rows),
                         [](const auto& row) { return std::string(row.param.name); });

TEST(AViolation, ShowsTheBytesItIsAbout) {
  const std::string bytes("a\n\\\x01\xFF\0b", 7);
  try {
    require(false, "something", bytes);
    FAIL() << "nothing was thrown";
  } catch (const Violation& violation) {
    EXPECT_STREQ(violation.what(), "does not hold: something\n  for \"a\\n\\\\\\x01\\xff\\x00b\"");
  }
}

TEST(AWarning, IsTakenApart) {
  const SplitWarning parts = split_warning("Line 120: a: b");
  EXPECT_TRUE(parts.is_of_a_line);
  EXPECT_EQ(parts.line, 120U);
  EXPECT_EQ(parts.message, "a: b");
}

}  // namespace
}  // namespace kelp::input::quill
